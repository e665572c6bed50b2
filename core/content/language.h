#pragma once

#include "core/content/wholeobject.h"

#include <QtCore/QList>

namespace vl::core {

struct LexiconEntry
{
    QString word;
    QString gloss;
    QString partOfSpeech;
    QString notes;

    bool operator==(const LexiconEntry &) const = default;
};

struct LanguageData
{
    QString name;
    QString consonants;
    QString vowels;
    QString patterns;
    qint32 minSyllables = 1;
    qint32 maxSyllables = 3;
    QString grammarNotes;
    QList<LexiconEntry> lexicon;

    bool operator==(const LanguageData &) const = default;
};

/// An invented language: its sounds, its words and its grammar.
using Language = WholeObject<LanguageData, ContentKind::Language>;

} // namespace vl::core
