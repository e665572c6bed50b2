#include "desktop/dialogs/differenceview.h"

#include "app/models/textdifference.h"
#include "desktop/shell/theme.h"

#include <QtGui/QTextBlock>

namespace vl::desktop {

namespace {

constexpr int context = 3;

/// The runs to be marked in each line: those in which a line that went differs from the one that
/// came in its place.
std::vector<std::vector<app::TextRun>> changedWords(const std::vector<app::DifferenceLine> &lines)
{
    using Kind = app::DifferenceLine::Kind;
    std::vector<std::vector<app::TextRun>> marks(lines.size());
    for (std::size_t i = 0; i < lines.size();) {
        std::size_t removedEnd = i;
        while (removedEnd < lines.size() && lines[removedEnd].kind == Kind::Removed)
            ++removedEnd;
        std::size_t addedEnd = removedEnd;
        while (addedEnd < lines.size() && lines[addedEnd].kind == Kind::Added)
            ++addedEnd;
        for (std::size_t k = 0; i + k < removedEnd && removedEnd + k < addedEnd; ++k) {
            app::WordDifference words =
                app::wordDifference(lines[i + k].text, lines[removedEnd + k].text);
            marks[i + k] = std::move(words.removed);
            marks[removedEnd + k] = std::move(words.added);
        }
        i = std::max(addedEnd, i + 1);
    }
    return marks;
}

} // namespace

DifferenceView::DifferenceView(QWidget *parent)
    : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setAccessibleName(tr("Differences"));
    setTabChangesFocus(true);
}

void DifferenceView::show(const QString &before, const QString &after)
{
    using Kind = app::DifferenceLine::Kind;
    clear();
    if (before == after) {
        setPlainText(tr("Both are the same."));
        return;
    }
    const std::vector<app::DifferenceLine> lines = app::differenceLines(before, after, context);
    const std::vector<std::vector<app::TextRun>> marks = changedWords(lines);
    const DifferenceColours colours = differenceColours(palette());
    QTextCursor cursor(document());
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const bool isAdded = lines[i].kind == Kind::Added;
        const bool isRemoved = lines[i].kind == Kind::Removed;
        QTextBlockFormat format;
        if (isAdded || isRemoved)
            format.setBackground(isAdded ? colours.added : colours.removed);
        if (i > 0)
            cursor.insertBlock(format);
        else
            cursor.setBlockFormat(format);
        const QString sign = isAdded                          ? QStringLiteral("+ ")
                             : isRemoved                      ? QStringLiteral("− ")
                             : lines[i].kind == Kind::Skipped ? QStringLiteral("⋯")
                                                              : QStringLiteral("   ");
        cursor.insertText(sign, {});
        QTextCharFormat word;
        word.setBackground(isAdded ? colours.addedWord : colours.removedWord);
        word.setFontUnderline(true);
        qsizetype done = 0;
        for (const app::TextRun &run : marks[i]) {
            cursor.insertText(lines[i].text.mid(done, run.position - done), {});
            cursor.insertText(lines[i].text.mid(run.position, run.length), word);
            done = run.position + run.length;
        }
        cursor.insertText(lines[i].text.mid(done), {});
    }
    moveCursor(QTextCursor::Start);
}

void DifferenceView::showPlain(const QString &text)
{
    setPlainText(text);
}

} // namespace vl::desktop
