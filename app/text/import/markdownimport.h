#pragma once

#include "app/text/import/importeddocument.h"

#include <QtCore/QByteArrayView>
#include <QtCore/QString>

namespace vl::app {

/// Reads Markdown. Its headings ("# Title", and titles underlined with "===" or "---") become
/// nested documents, except inside fenced code; text before the first one is a document of its own.
/// A YAML block at the start gives the title and stays as a note when it says more. Footnote
/// definitions go to the documents that refer to them. A text without headings is one document,
/// for which `fallbackTitle` is the title.
ImportedManuscript importMarkdownText(QByteArrayView bytes, const QString &fallbackTitle);

} // namespace vl::app
