#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QStringView>

#include <array>
#include <vector>

namespace vl::app {

/// A wordy phrase and the shorter text that says the same, both in lower case.
struct WordyPhrase
{
    QString phrase;
    QString replacement;
};

/// The English word lists of the style rules, in lower case and in a fixed order.
namespace stylewords {
QStringList formsOfToBe();
QStringList irregularParticiples();
QStringList fillers();
QList<WordyPhrase> wordyPhrases();
QStringList adverbExceptions(); ///< words ending in "ly" that are never reported as adverbs
QStringList cliches();
} // namespace stylewords

/// Case folding as far as the word lists can notice it: they hold the letters a to z alone, which
/// case-insensitive matching also finds in the capitals, the long s and the Kelvin sign.
constexpr char16_t foldToList(char16_t unit)
{
    if (unit >= u'A' && unit <= u'Z')
        return char16_t(unit | 0x20);
    if (unit == u'\u017F')
        return u's';
    if (unit == u'\u212A')
        return u'k';
    return unit;
}

/// Every word of the lists in one hash table, so that one look tells all rules about a word.
class StyleVocabulary
{
public:
    /// The phrases of one rule.
    enum PhraseList
    {
        Fillers,
        Wordy,
        Cliches,
        PhraseListCount
    };

    /// What the rules know about one word.
    struct Entry
    {
        QString word;
        bool isFormOfToBe = false;
        bool isParticiple = false;
        bool isNot = false;
        bool isAdverbException = false;
        /// For each list the phrases that begin with this word, longest first.
        std::array<QStringList, PhraseListCount> phrases;
    };

    /// The one shared table; built on first use, safe to call from any thread.
    static const StyleVocabulary &instance();

    /// Where a word's hash starts, and how it takes in one more folded UTF-16 unit.
    static constexpr quint32 hashSeed = 2166136261U;
    static constexpr quint32 hashStep(quint32 hash, char16_t folded)
    {
        return (hash ^ folded) * 16777619U;
    }

    /// What is known about a word in any case of letters, or null. The hash is that of its units.
    const Entry *find(QStringView word, quint32 hash) const
    {
        for (quint32 slot = slotOf(hash); m_slots[slot].entry >= 0; slot = (slot + 1) % slotCount) {
            if (m_slots[slot].hash != hash)
                continue;
            const Entry &entry = m_entries[size_t(m_slots[slot].entry)];
            if (isSameWord(word, entry.word))
                return &entry;
        }
        return nullptr;
    }

    /// The shorter text for a phrase of the wordy list, given in lower case.
    QString replacementFor(const QString &phrase) const;

private:
    struct Slot
    {
        quint32 hash = 0;
        int entry = -1;
    };
    static constexpr quint32 slotCount = 2048;

    StyleVocabulary();
    static quint32 slotOf(quint32 hash) { return (hash ^ (hash >> 15)) % slotCount; }
    static bool isSameWord(QStringView word, const QString &listed);
    Entry &entryFor(const QString &word);
    void addPhrases(PhraseList list, QStringList phrases);

    std::vector<Entry> m_entries;
    std::array<Slot, slotCount> m_slots;
    QList<WordyPhrase> m_wordy;
};

} // namespace vl::app
