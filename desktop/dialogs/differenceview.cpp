#include "desktop/dialogs/differenceview.h"

#include "app/models/textdifference.h"
#include "desktop/shell/theme.h"

#include <QtGui/QTextBlock>

namespace vl::desktop {

namespace {

constexpr int context = 3;

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
    QTextCursor cursor(document());
    bool isFirst = true;
    const DifferenceColours colours = differenceColours(palette());
    for (const app::DifferenceLine &line : app::differenceLines(before, after, context)) {
        QTextBlockFormat format;
        QString sign = QStringLiteral("   ");
        if (line.kind == Kind::Added) {
            format.setBackground(colours.added);
            sign = QStringLiteral("+ ");
        } else if (line.kind == Kind::Removed) {
            format.setBackground(colours.removed);
            sign = QStringLiteral("− ");
        } else if (line.kind == Kind::Skipped) {
            sign = QStringLiteral("⋯");
        }
        if (!isFirst)
            cursor.insertBlock(format);
        else
            cursor.setBlockFormat(format);
        isFirst = false;
        cursor.insertText(sign + line.text);
    }
    moveCursor(QTextCursor::Start);
}

void DifferenceView::showPlain(const QString &text)
{
    setPlainText(text);
}

} // namespace vl::desktop
