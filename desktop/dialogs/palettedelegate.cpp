#include "desktop/dialogs/palettedelegate.h"

#include "app/models/quickopenmodel.h"
#include "desktop/shell/icons.h"
#include "desktop/shell/theme.h"
#include "desktop/widgets/grid.h"

#include <QtGui/QPainter>
#include <QtGui/QTextLayout>
#include <QtWidgets/QApplication>

#include <cmath>

namespace vl::desktop {

using Kind = app::QuickOpenModel::Kind;

namespace {

constexpr double largestTextShare = 0.7; // of the row; the rest is left to where it stands

QString iconName(Kind kind)
{
    switch (kind) {
    case Kind::Chapter:
        return QStringLiteral("chapter");
    case Kind::Screenplay:
        return QStringLiteral("scene");
    case Kind::Note:
        return QStringLiteral("note");
    case Kind::Entity:
        return QStringLiteral("entity");
    case Kind::Command:
        return QStringLiteral("play");
    case Kind::Tag:
        return QStringLiteral("tag");
    case Kind::Heading:
        return QStringLiteral("outline");
    case Kind::Document:
        break;
    }
    return QStringLiteral("document");
}

} // namespace

int drawMarkedText(QPainter *painter, const QRect &rect, const QString &text,
                   const QList<int> &marks, const QColor &colour, const QColor &markColour,
                   const QFont &font, Qt::LayoutDirection direction)
{
    QFont bold = font;
    bold.setBold(true);
    // Marked letters are wider: the room for the rest is what they leave.
    const QString shown =
        QFontMetrics(marks.isEmpty() ? font : bold).elidedText(text, Qt::ElideRight, rect.width());
    const bool isCut = shown != text;
    QList<QTextLayout::FormatRange> formats;
    for (const int mark : marks) {
        if (isCut && mark >= shown.size() - 1)
            break;
        QTextLayout::FormatRange range;
        range.start = mark;
        range.length = 1;
        range.format.setFontWeight(QFont::Bold);
        range.format.setForeground(markColour);
        if (!formats.isEmpty() && formats.last().start + formats.last().length == mark)
            ++formats.last().length;
        else
            formats.append(range);
    }
    QTextLayout layout(shown, font);
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    option.setTextDirection(direction);
    layout.setTextOption(option);
    layout.setFormats(formats);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(rect.width());
    layout.endLayout();
    const int width = int(std::ceil(line.naturalTextWidth()));
    painter->setPen(colour);
    layout.draw(painter, QPointF(rect.x(), rect.y() + (rect.height() - line.height()) / 2));
    return width;
}

void PaletteDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const
{
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    row.text.clear();
    const QStyle *style = row.widget ? row.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);

    const auto kind = Kind(index.data(app::QuickOpenModel::KindRole).toInt());
    const bool isSelected = row.state.testFlag(QStyle::State_Selected);
    const bool isEnabled = index.data(app::QuickOpenModel::IsEnabledRole).toBool();
    const QColor ground = row.palette.color(isSelected ? QPalette::Highlight : QPalette::Base);
    const QColor ink = row.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
    // On a highlighted row all text has the colour that was made for it.
    const QColor quiet = isSelected ? ink : mix(ink, ground, quietAmount);
    const QColor colour = isEnabled ? ink : quiet;
    const QColor markColour = isSelected || !isEnabled ? colour : row.palette.color(QPalette::Link);

    const auto place = [&row](QRect rect) {
        return QStyle::visualRect(row.direction, row.rect, rect);
    };
    const int indent = index.data(app::QuickOpenModel::LevelRole).toInt() * grid(4);
    QRect rest = row.rect.adjusted(grid(2) + indent, 0, -grid(2), 0);
    const int iconSize = grid(4);
    const QRect iconRect(rest.left(), rest.center().y() - iconSize / 2, iconSize, iconSize);
    icon(iconName(kind))
        .paint(painter, place(iconRect), Qt::AlignCenter,
               isSelected  ? QIcon::Selected
               : isEnabled ? QIcon::Normal
                           : QIcon::Disabled);
    rest.setLeft(iconRect.right() + grid(2));

    painter->save();
    painter->setFont(row.font);
    const QString shortcut = index.data(app::QuickOpenModel::ShortcutRole).toString();
    if (!shortcut.isEmpty()) {
        const int width = row.fontMetrics.horizontalAdvance(shortcut);
        QRect end = rest;
        end.setLeft(rest.right() - width);
        painter->setPen(quiet);
        painter->drawText(place(end), Qt::AlignVCenter | Qt::AlignRight, shortcut);
        rest.setRight(end.left() - grid(3));
    }
    const QString detail = index.data(app::QuickOpenModel::DetailRole).toString();
    QRect textRect = rest;
    if (!detail.isEmpty())
        textRect.setWidth(qRound(rest.width() * largestTextShare));
    const auto marks = index.data(app::QuickOpenModel::MarksRole).value<QList<int>>();
    const int width = drawMarkedText(painter, place(textRect), index.data().toString(), marks,
                                     colour, markColour, row.font, row.direction);
    if (!detail.isEmpty()) {
        rest.setLeft(rest.left() + width + grid(3));
        painter->setPen(quiet);
        painter->drawText(place(rest), Qt::AlignVCenter | Qt::AlignLeft,
                          row.fontMetrics.elidedText(detail, Qt::ElideMiddle, rest.width()));
    }
    painter->restore();
}

} // namespace vl::desktop
