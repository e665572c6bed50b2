#pragma once

#include "core/content/document.h"

#include <QtCore/QList>
#include <QtCore/QString>

namespace vl::app {

/// A place that gives a text its structure.
struct TextHeading
{
    QString text;           ///< without its marks
    int level = 1;          ///< 1 to 6, 1 the widest
    qsizetype position = 0; ///< UTF-16 offset of its line in the body
    qsizetype length = 0;   ///< UTF-16 units of its line, without the line end

    bool operator==(const TextHeading &) const = default;
};

/// The headings of a body, from top to bottom: Markdown headings, and in a screenplay its sections
/// and scene headings.
QList<TextHeading> textHeadings(QStringView body, core::DocumentKind kind);

} // namespace vl::app
