#pragma once

#include "app/base/result.h"
#include "app/text/import/importeddocument.h"

#include <QtCore/QString>
#include <QtCore/QStringView>

namespace vl::app {

/// Reads one Markdown file, or a folder: its ".md", ".markdown" and ".txt" files and the folders
/// below become nested documents in natural order. Hidden files, links, files that are no text and
/// what lies too deep are skipped and named. Fails when the path itself cannot be read.
Result<ImportedManuscript> importMarkdown(const QString &path);

/// Whether `a` stands before `b` as people sort names: numbers by value ("2" before "10"), letters
/// in any case.
bool isNaturallyBefore(QStringView a, QStringView b);

} // namespace vl::app
