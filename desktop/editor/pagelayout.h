#pragma once

#include <QtCore/QSizeF>
#include <QtCore/QString>
#include <QtGui/QFont>
#include <QtGui/QTextLayout>

#include <atomic>
#include <functional>
#include <vector>

namespace vl::desktop {

/// The measures of printed pages, in pixels of 96 to the inch.
struct PageSetup
{
    QSizeF page;
    qreal margin = 96; ///< on all four sides; the header stands in the upper one
    QFont font;
    double lineSpacing = 1.5; ///< in parts of the font's own

    /// The paper of the user's country, an inch of margin, and a font in 12 points.
    static PageSetup standard(const QString &fontFamily, double lineSpacing);
    QSizeF room() const { return page - QSizeF(2 * margin, 2 * margin); }
};

/// One paragraph as it is printed: without the marks of Markdown, with what they mean.
struct PrintedParagraph
{
    QString text;
    QList<QTextLayout::FormatRange> formats;
    Qt::Alignment alignment = Qt::AlignLeft;
    qreal firstIndent = 0; ///< of the first row, in pixels
    qreal indent = 0;      ///< of all rows
    qreal spaceBefore = 0; ///< left out at the top of a page
    qreal scale = 1;       ///< of the font
    bool keepsWithNext = false;
    qsizetype source = 0; ///< where its first line begins in the text, UTF-16 units
};

/// A row of a paragraph on a page, from the upper left corner of the page's room.
struct PageRow
{
    int paragraph = 0;
    int row = 0;
    qreal y = 0;
};
using Page = std::vector<PageRow>;

/// The paragraphs that a Markdown text prints: lines of one paragraph are joined, notes left out.
std::vector<PrintedParagraph> printedParagraphs(const QString &text, const PageSetup &setup);

/// Lays out the rows of a paragraph and gives the height of each, with its spacing.
qreal layOutParagraph(QTextLayout &layout, const PrintedParagraph &paragraph,
                      const PageSetup &setup);

/// Fills pages, and hands them on as they are filled. A paragraph's first or last row never stands
/// alone on a page, and a heading never at its foot. Runs on any thread; stops when cancelled.
void fillPages(const std::vector<PrintedParagraph> &paragraphs, const PageSetup &setup,
               const std::function<void(Page)> &receive, const std::atomic_bool &isCancelled);

} // namespace vl::desktop
