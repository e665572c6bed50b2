#include "desktop/dialogs/findinprojectdelegate.h"

#include "app/models/projectsearchmodel.h"
#include "desktop/shell/icons.h"
#include "desktop/shell/theme.h"
#include "desktop/widgets/grid.h"

#include <QtCore/QLocale>
#include <QtGui/QPainter>
#include <QtGui/QTextLayout>
#include <QtWidgets/QApplication>

namespace vl::desktop {

using Model = app::ProjectSearchModel;

namespace {

constexpr double largestTitleShare = 0.6;

QString iconName(Model::Kind kind)
{
    switch (kind) {
    case Model::Kind::Chapter:
        return QStringLiteral("chapter");
    case Model::Kind::Screenplay:
        return QStringLiteral("scene");
    case Model::Kind::Note:
        return QStringLiteral("note");
    case Model::Kind::Entity:
        return QStringLiteral("entity");
    case Model::Kind::Category:
        return QStringLiteral("category");
    case Model::Kind::Comment:
        return QStringLiteral("comment");
    case Model::Kind::Timeline:
        return QStringLiteral("timeline");
    case Model::Kind::Other:
        return QStringLiteral("page");
    case Model::Kind::Document:
        break;
    }
    return QStringLiteral("document");
}

struct Colours
{
    QColor ink;
    QColor quiet;
    QColor mark;
};

/// On a highlighted row all text has the colour that was made for it.
Colours coloursOf(const QStyleOptionViewItem &row)
{
    const bool isSelected = row.state.testFlag(QStyle::State_Selected);
    const QColor ink = row.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
    if (isSelected)
        return {ink, ink, ink};
    return {ink, mix(ink, row.palette.color(QPalette::Base), quietAmount),
            row.palette.color(QPalette::Link)};
}

/// One line made of pieces that look differently.
class Line
{
public:
    void add(const QString &text, const QTextCharFormat &format)
    {
        QTextLayout::FormatRange range;
        range.start = int(m_text.size());
        range.length = int(text.size());
        range.format = format;
        m_formats.append(range);
        m_text += text;
    }
    void draw(QPainter *painter, const QRect &rect, const QStyleOptionViewItem &row) const
    {
        const QString shown =
            row.fontMetrics.elidedText(m_text, Qt::ElideRight, rect.width(), Qt::TextSingleLine);
        QTextLayout layout(shown, row.font);
        QTextOption option;
        option.setWrapMode(QTextOption::NoWrap);
        layout.setTextOption(option); // each text in its own direction
        layout.setFormats(m_formats);
        layout.beginLayout();
        QTextLine line = layout.createLine();
        line.setLineWidth(rect.width());
        layout.endLayout();
        painter->setClipRect(rect);
        layout.draw(painter, QPointF(rect.x(), rect.y() + (rect.height() - line.height()) / 2));
    }

private:
    QString m_text;
    QList<QTextLayout::FormatRange> m_formats;
};

QTextCharFormat plain(const QColor &colour)
{
    QTextCharFormat format;
    format.setForeground(colour);
    return format;
}

} // namespace

void FindInProjectDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                  const QModelIndex &index) const
{
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    row.text.clear();
    const QStyle *style = row.widget ? row.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);
    // A text would begin behind the box to tick, where there is one.
    const int start =
        row.features.testFlag(QStyleOptionViewItem::HasCheckIndicator)
            ? style->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &row, row.widget).width()
                  + grid(2)
            : 0;
    const QRect rect = row.rect.adjusted(start + grid(2), 0, -grid(2), 0);
    painter->save();
    if (index.data(Model::IsHeaderRole).toBool())
        paintHeader(painter, row, rect, index);
    else
        paintPlace(painter, row, rect.adjusted(grid(6), 0, 0, 0), index);
    painter->restore();
}

void FindInProjectDelegate::paintHeader(QPainter *painter, const QStyleOptionViewItem &row,
                                        const QRect &rect, const QModelIndex &index) const
{
    const auto place = [&row](const QRect &part) {
        return QStyle::visualRect(row.direction, row.rect, part);
    };
    const Colours colours = coloursOf(row);
    const int iconSize = grid(4);
    const QRect iconRect(rect.left(), rect.center().y() - iconSize / 2, iconSize, iconSize);
    icon(iconName(Model::Kind(index.data(Model::KindRole).toInt())))
        .paint(painter, place(iconRect), Qt::AlignCenter,
               row.state.testFlag(QStyle::State_Selected) ? QIcon::Selected : QIcon::Normal);
    const QString count = QLocale().toString(index.data(Model::CountRole).toInt());
    const int countWidth = row.fontMetrics.horizontalAdvance(count);
    QRect rest = rect.adjusted(iconSize + grid(2), 0, -countWidth - grid(2), 0);
    painter->setFont(row.font);
    painter->setPen(colours.quiet);
    painter->drawText(place({rest.right() + grid(2), rest.top(), countWidth + 1, rest.height()}),
                      Qt::AlignVCenter | Qt::AlignRight, count);

    const QString path = index.data(Model::PathRole).toString();
    QFont bold = row.font;
    bold.setBold(true);
    const QFontMetrics boldMetrics(bold);
    const int room = path.isEmpty() ? rest.width() : qRound(rest.width() * largestTitleShare);
    const QString title =
        boldMetrics.elidedText(index.data().toString(), Qt::ElideMiddle, room, Qt::TextSingleLine);
    const int width = boldMetrics.horizontalAdvance(title);
    painter->setFont(bold);
    painter->setPen(colours.ink);
    painter->drawText(place({rest.left(), rest.top(), width + 1, rest.height()}),
                      Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, title);
    rest.setLeft(rest.left() + width + grid(3));
    painter->setFont(row.font);
    painter->setPen(colours.quiet);
    painter->drawText(place(rest), Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                      row.fontMetrics.elidedText(path, Qt::ElideMiddle, rest.width()));
}

void FindInProjectDelegate::paintPlace(QPainter *painter, const QStyleOptionViewItem &row,
                                       const QRect &rect, const QModelIndex &index) const
{
    const Colours colours = coloursOf(row);
    const QVariant replacement = index.data(Model::ReplacementRole);
    const bool isReplaced =
        replacement.isValid() && index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    QTextCharFormat matched = plain(isReplaced ? colours.quiet : colours.mark);
    matched.setFontWeight(isReplaced ? QFont::Normal : QFont::Bold);
    matched.setFontStrikeOut(isReplaced);
    QTextCharFormat added = plain(colours.mark);
    added.setFontWeight(QFont::Bold);

    Line line;
    const QString field = index.data(Model::FieldRole).toString();
    if (!field.isEmpty())
        line.add(field + QStringLiteral(":  "), plain(colours.quiet));
    line.add(index.data(Model::BeforeRole).toString(), plain(colours.ink));
    line.add(index.data(Model::MatchRole).toString(), matched);
    if (isReplaced)
        line.add(u' ' + replacement.toString(), added);
    line.add(index.data(Model::AfterRole).toString(), plain(colours.ink));
    line.draw(painter, QStyle::visualRect(row.direction, row.rect, rect), row);
}

} // namespace vl::desktop
