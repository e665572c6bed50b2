#pragma once

#include "app/base/result.h"
#include "app/text/import/importeddocument.h"

#include <QtCore/QByteArrayView>
#include <QtCore/QString>

namespace vl::app {

/// The largest plain-text or Markdown file that is imported, in bytes.
inline constexpr qint64 largestTextImport = qint64(64) << 20;

/// Reads a book from plain text in any of the usual encodings. Volumes, books, parts and chapters
/// become nested documents titled by their headings; a table of contents is no heading. What stands
/// before the first heading is a document of its own, a note when it holds the contents. A text
/// without headings is one document, for which `fallbackTitle` is the title. Every word of the text
/// comes out again.
ImportedManuscript importPlainText(QByteArrayView bytes, const QString &fallbackTitle);

/// The same for a file, titled by its name. Fails when it cannot be read or is too large.
Result<ImportedManuscript> importTextFile(const QString &path);

} // namespace vl::app
