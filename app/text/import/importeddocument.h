#pragma once

#include "core/content/document.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <vector>

namespace vl::app {

/// The most levels of documents that an import nests; what lies deeper is brought up to the last.
inline constexpr int deepestImport = 64;

/// One document that an import has read, with those below it.
struct ImportedDocument
{
    QString title;
    QString body; ///< Markdown
    std::vector<ImportedDocument> children;
    core::DocumentKind kind = core::DocumentKind::Prose;
};

/// All that an import has read, before it becomes part of a project.
struct ImportedManuscript
{
    QString title;                           ///< of the work; may be empty
    std::vector<ImportedDocument> documents; ///< the top level, in the order of reading
    QStringList skipped;                     ///< what was left out, one message each
    bool hasFrontText = false; ///< the first that is no note is the text before all headings
};

/// A document in reading order with its level, lower levels being nearer the top.
struct LevelledDocument
{
    int level = 0;
    ImportedDocument document;
};

/// Puts each document under the nearest one before it that has a lower level. Levels may skip.
std::vector<ImportedDocument> nestDocuments(std::vector<LevelledDocument> documents);

} // namespace vl::app
