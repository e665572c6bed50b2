#include "desktop/panels/editortextwidget.h"

#include "desktop/editor/editorlayout.h"
#include "desktop/editor/editorpictures.h"
#include "desktop/editor/livedocument.h"
#include "desktop/widgets/grid.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtGui/QTextBlock>
#include <QtWidgets/QScrollBar>

namespace vl::desktop {

namespace {

int leastMargin()
{
    return grid(4);
}

/// The row of a paragraph that a height belongs to, the spacing around it included.
QTextLine rowAt(const QTextLayout &layout, qreal y)
{
    QTextLine found = layout.lineAt(0);
    for (int i = 1; i < layout.lineCount(); ++i) {
        const QTextLine row = layout.lineAt(i);
        const qreal border = (found.y() + found.height() + row.y()) / 2;
        if (y < border)
            break;
        found = row;
    }
    return found;
}

/// Keeps its place while there is nothing to scroll, but is not seen then: a bar that comes and
/// goes takes width from the lines, which makes more rows of them, which brings the bar.
class QuietScrollBar final : public QScrollBar
{
public:
    using QScrollBar::QScrollBar;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        if (minimum() < maximum())
            QScrollBar::paintEvent(event);
        else
            QPainter(this).fillRect(event->rect(), palette().base());
    }
};

} // namespace

EditorTextWidget::EditorTextWidget(QWidget *parent)
    : QPlainTextEdit(parent)
{
    setFrameShape(QFrame::NoFrame);
    setBackgroundRole(QPalette::Base); // beside the column too
    setAutoFillBackground(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBar(new QuietScrollBar(Qt::Vertical, this));
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setTabChangesFocus(false);
    setCursorWidth(qMax(1, grid(1) / 2));
    connect(this, &QPlainTextEdit::textChanged, this, [this] { m_isEditing = false; });
    // The base class has only the letters painted anew, a selection covers the spacing too.
    connect(this, &QPlainTextEdit::selectionChanged, viewport(), qOverload<>(&QWidget::update));
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, [this] {
        if (textCursor().hasSelection())
            viewport()->update();
        if (!m_isEditing)
            Q_EMIT caretJumped();
        else if (m_isTypewriter)
            centerCursor();
    });
}

EditorTextWidget::~EditorTextWidget() = default;

void EditorTextWidget::setStyle(std::shared_ptr<const EditorStyle> style)
{
    m_style = std::move(style);
    setFont(m_style->font());
    if (m_live) {
        notePlace();
        m_live->layout()->setStyle(m_style);
    }
    centreColumn();
    goToPlace();
    viewport()->update();
}

void EditorTextWidget::setPictures(EditorPictures *pictures)
{
    m_pictures = pictures;
    connect(pictures, &EditorPictures::arrived, this, [this] {
        if (m_live)
            Q_EMIT m_live->layout()->documentSizeChanged(m_live->layout()->documentSize());
        viewport()->update();
    });
}

void EditorTextWidget::showDocument(LiveDocument *live)
{
    const QSignalBlocker blocker(this);
    disconnect(m_edits);
    m_live = live;
    if (!live) {
        setDocument(nullptr);
        return;
    }
    if (live->layout()->style() != m_style.get())
        live->layout()->setStyle(m_style);
    live->layout()->setPictures(m_pictures);
    live->layout()->setWidth(viewport()->width());
    setDocument(live->document());
    live->document()->setUndoRedoEnabled(false);
    live->layout()->estimateLines();
    m_edits =
        connect(document(), &QTextDocument::contentsChange, this, [this] { m_isEditing = true; });
    m_isEditing = false;
    m_isPlacePending = !isVisible();
    goToPlace();
}

void EditorTextWidget::setHits(std::vector<app::SearchHit> hits)
{
    if (hits.empty() && m_hits.empty())
        return;
    m_hits = std::move(hits);
    viewport()->update();
}

void EditorTextWidget::showCaretWithin()
{
    const QRect caret = cursorRect();
    const int room = 3 * caret.height();
    if (!viewport()->rect().adjusted(0, room, 0, -room).contains(caret.center()))
        centerCursor();
}

void EditorTextWidget::setTypewriter(bool isOn)
{
    m_isTypewriter = isOn;
    setCenterOnScroll(isOn); // the last line can come to the middle too
    if (isOn)
        centerCursor();
}

QString EditorTextWidget::text() const
{
    return m_live ? m_live->text() : QString();
}

qsizetype EditorTextWidget::caret() const
{
    return m_live ? m_live->toShown(textCursor().position()) : 0;
}

void EditorTextWidget::select(qsizetype anchor, qsizetype caret)
{
    if (!m_live)
        return;
    QTextCursor cursor = textCursor();
    cursor.setPosition(m_live->toDocument(anchor));
    cursor.setPosition(m_live->toDocument(caret), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

void EditorTextWidget::notePlace()
{
    if (!m_live)
        return;
    QTextBlock block = firstVisibleBlock();
    if (!block.isValid())
        block = document()->lastBlock();
    const int row = verticalScrollBar()->value() - block.firstLineNumber();
    int top = block.position();
    if (row > 0 && row < block.layout()->lineCount())
        top += block.layout()->lineAt(row).textStart();
    m_live->place = {m_live->toShown(textCursor().position()),
                     m_live->toShown(textCursor().anchor()), m_live->toShown(top)};
}

void EditorTextWidget::goToPlace()
{
    if (!m_live)
        return;
    const app::WritingPlace place = m_live->place;
    select(place.anchor, place.caret);
    const int top = m_live->toDocument(place.top);
    const QTextBlock block = document()->findBlock(top);
    blockBoundingRect(block); // lays it out
    const QTextLine row = block.layout()->lineForTextPosition(top - block.position());
    verticalScrollBar()->setValue(block.firstLineNumber() + (row.isValid() ? row.lineNumber() : 0));
}

bool EditorTextWidget::event(QEvent *event)
{
    // The widget would keep these for its own history, which it does not have.
    if (event->type() == QEvent::ShortcutOverride) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) {
            event->ignore();
            return false;
        }
    }
    return forwardToColumn(event) || QPlainTextEdit::event(event);
}

/// What happens beside the column happens to the line there.
bool EditorTextWidget::forwardToColumn(QEvent *event)
{
    const auto inColumn = [this](const QPointF &point) {
        QPointF inside = point - viewport()->pos();
        inside.setX(qBound(0.0, inside.x(), qMax(0.0, viewport()->width() - 1.0)));
        return inside;
    };
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove: {
        auto *mouse = static_cast<QMouseEvent *>(event);
        QMouseEvent moved(mouse->type(), inColumn(mouse->position()), mouse->globalPosition(),
                          mouse->button(), mouse->buttons(), mouse->modifiers());
        viewportEvent(&moved);
        return true;
    }
    case QEvent::Wheel: {
        auto *wheel = static_cast<QWheelEvent *>(event);
        QWheelEvent moved(inColumn(wheel->position()), wheel->globalPosition(), wheel->pixelDelta(),
                          wheel->angleDelta(), wheel->buttons(), wheel->modifiers(), wheel->phase(),
                          wheel->inverted());
        viewportEvent(&moved);
        return true;
    }
    default:
        return false;
    }
}

QPointF EditorTextWidget::onLine(const QPointF &point) const
{
    QTextBlock block = firstVisibleBlock();
    QRectF rect = blockBoundingGeometry(block).translated(contentOffset());
    while (block.next().isValid() && rect.bottom() <= point.y()) {
        block = block.next();
        rect.moveTop(rect.bottom());
        rect.setHeight(blockBoundingRect(block).height());
    }
    const QTextLayout *layout = block.layout();
    if (!layout || layout->lineCount() == 0)
        return point;
    const QTextLine row = rowAt(*layout, point.y() - rect.top());
    const qreal top = rect.top() + row.y();
    return {point.x(), qBound(top + 1, point.y(), top + row.height() - 1)};
}

bool EditorTextWidget::viewportEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove: {
        // Between two lines the base class would take the end of the upper one.
        auto *mouse = static_cast<QMouseEvent *>(event);
        const bool isInView = viewport()->rect().contains(mouse->position().toPoint());
        QMouseEvent moved(mouse->type(), isInView ? onLine(mouse->position()) : mouse->position(),
                          mouse->globalPosition(), mouse->button(), mouse->buttons(),
                          mouse->modifiers());
        const bool isTaken = QPlainTextEdit::viewportEvent(&moved);
        event->setAccepted(moved.isAccepted());
        return isTaken;
    }
    default:
        return QPlainTextEdit::viewportEvent(event);
    }
}

void EditorTextWidget::paintEvent(QPaintEvent *event)
{
    if (!m_live)
        return;
    QPainter painter(viewport());
    const QAbstractTextDocumentLayout::PaintContext context = getPaintContext();
    painter.setPen(palette().color(QPalette::Text));
    QPointF offset = contentOffset();
    for (QTextBlock block = firstVisibleBlock(); block.isValid(); block = block.next()) {
        const qreal height = blockBoundingRect(block).height();
        if (offset.y() + height >= event->rect().top() && offset.y() <= event->rect().bottom())
            paintBlock(painter, block, offset, event->rect(), context);
        offset.ry() += height;
        if (offset.y() > event->rect().bottom())
            break;
    }
}

void EditorTextWidget::paintBlock(QPainter &painter, const QTextBlock &block, const QPointF &offset,
                                  const QRect &clip,
                                  const QAbstractTextDocumentLayout::PaintContext &context)
{
    const EditorLine *line = EditorLine::of(block);
    if (line && line->kind == app::MarkdownLineKind::Quote)
        painter.fillRect(QRectF(offset.x(), offset.y(), grid(1) / 2.0, line->height),
                         m_style->quoteBarColor());
    if (line
        && (line->kind == app::MarkdownLineKind::FencedCode
            || line->kind == app::MarkdownLineKind::Fence))
        painter.fillRect(QRectF(offset.x(), offset.y(), viewport()->width(), line->height),
                         m_style->codeGround());

    paintHits(painter, block, offset);
    const int start = block.position();
    QList<QTextLayout::FormatRange> selections;
    for (const QAbstractTextDocumentLayout::Selection &selection : context.selections) {
        const int from = qMax(0, selection.cursor.selectionStart() - start);
        const int to = qMin(block.length(), selection.cursor.selectionEnd() - start);
        if (from >= to)
            continue;
        paintGround(painter, block, offset, from, to,
                    palette().color(hasFocus() ? QPalette::Active : QPalette::Inactive,
                                    QPalette::Highlight));
        QTextLayout::FormatRange range{from, qMin(to, block.length() - 1) - from, {}};
        range.format.setForeground(selection.format.foreground());
        range.format.setBackground(Qt::NoBrush);
        if (range.length > 0)
            selections.append(range);
    }
    QTextLayout *layout = block.layout();
    layout->draw(&painter, offset, selections, clip);
    paintPictures(painter, block, offset);

    int caret = context.cursorPosition - start;
    if (context.cursorPosition < -1 && !layout->preeditAreaText().isEmpty())
        caret = layout->preeditAreaPosition() - (context.cursorPosition + 2);
    else if (context.cursorPosition < start || context.cursorPosition >= start + block.length())
        return;
    layout->drawCursor(&painter, offset, caret, cursorWidth());
}

/// A selection or a hit covers the spacing between its lines.
void EditorTextWidget::paintGround(QPainter &painter, const QTextBlock &block,
                                   const QPointF &offset, int from, int to, const QColor &color)
{
    const QTextLayout *layout = block.layout();
    const EditorLine *line = EditorLine::of(block);
    for (int i = 0; i < layout->lineCount(); ++i) {
        const QTextLine row = layout->lineAt(i);
        const int end = row.textStart() + row.textLength();
        const bool isLast = i + 1 == layout->lineCount();
        if (to <= row.textStart() || (from >= end && !(isLast && from == end)))
            continue;
        const qreal top =
            i == 0 ? 0 : (layout->lineAt(i - 1).y() + layout->lineAt(i - 1).height() + row.y()) / 2;
        const qreal bottom = isLast ? (line ? line->height : row.y() + row.height())
                                    : (row.y() + row.height() + layout->lineAt(i + 1).y()) / 2;
        const qreal a = row.cursorToX(qMax(from, row.textStart()));
        qreal b = row.cursorToX(qMin(to, end));
        if (to > end) // the line end is selected too
            b = isLast ? b + grid(2) : row.x() + row.width();
        painter.fillRect(QRectF(QPointF(offset.x() + qMin(a, b), offset.y() + top),
                                QPointF(offset.x() + qMax(a, b), offset.y() + bottom)),
                         color);
    }
}

void EditorTextWidget::paintHits(QPainter &painter, const QTextBlock &block, const QPointF &offset)
{
    if (m_hits.empty())
        return;
    const qsizetype start = m_live->toShown(block.position());
    const qsizetype end = start + block.length();
    auto hit = std::lower_bound(m_hits.begin(), m_hits.end(), start,
                                [](const app::SearchHit &found, qsizetype place) {
                                    return found.position + found.length <= place;
                                });
    for (; hit != m_hits.end() && hit->position < end; ++hit) {
        const int from = int(qMax<qsizetype>(0, hit->position - start));
        const int to =
            int(qMin<qsizetype>(block.length() - 1, hit->position + hit->length - start));
        if (from < to)
            paintGround(painter, block, offset, from, to, m_style->hitGround());
    }
}

void EditorTextWidget::paintPictures(QPainter &painter, const QTextBlock &block,
                                     const QPointF &offset)
{
    const EditorLine *line = EditorLine::of(block);
    if (!line || !m_pictures)
        return;
    for (int i = 0; i < line->pictures.size(); ++i) {
        const QRectF rect = m_live->layout()->pictureRect(block, i);
        if (rect.isEmpty())
            continue;
        const QImage image = m_pictures->picture(line->pictures[i]);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        if (!image.isNull())
            painter.drawImage(rect.translated(offset), image);
    }
}

void EditorTextWidget::focusOutEvent(QFocusEvent *event)
{
    QPlainTextEdit::focusOutEvent(event);
    Q_EMIT focusLost();
}

void EditorTextWidget::showEvent(QShowEvent *event)
{
    QPlainTextEdit::showEvent(event);
    if (std::exchange(m_isPlacePending, false)) {
        goToPlace();
        m_isPlacePending = false;
    }
}

void EditorTextWidget::resizeEvent(QResizeEvent *event)
{
    const auto isCaretIn = [this](int height) {
        const QRect caret = cursorRect();
        return caret.bottom() >= 0 && caret.top() < height && caret.bottom() <= height;
    };
    const bool wasCaretSeen = isCaretIn(event->oldSize().height());
    centreColumn();
    if (m_live)
        m_live->layout()->setWidth(viewport()->width());
    // The margins changed the room for the text after this event was made.
    QResizeEvent actual(viewport()->size(), event->oldSize());
    QPlainTextEdit::resizeEvent(&actual);
    if (m_live)
        m_live->layout()->estimateLines();
    // A notice above, or a strip below, does not take away the line that is being written.
    if (wasCaretSeen && !isCaretIn(viewport()->height()))
        ensureCursorVisible();
}

void EditorTextWidget::changeEvent(QEvent *event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        centreColumn();
}

void EditorTextWidget::centreColumn()
{
    const int margins = m_style ? qCeil(2 * document()->documentMargin()) : 0;
    const int column = (m_style ? m_style->columnWidth() : width()) + margins;
    const int room = width() - verticalScrollBar()->sizeHint().width() - column;
    const int side = qMax(leastMargin(), room / 2);
    setViewportMargins(side, leastMargin(), side, 0);
}

} // namespace vl::desktop
