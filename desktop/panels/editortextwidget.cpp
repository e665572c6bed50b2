#include "desktop/panels/editortextwidget.h"

#include <QtCore/QMimeData>
#include <QtGui/QFontDatabase>
#include <QtGui/QKeyEvent>
#include <QtGui/QTextBlock>

namespace vl::desktop {

namespace {

constexpr int columnCharacters = 70;
constexpr int leastMargin = 16;

/// The first reading serif that is installed, else the system's serif.
QFont manuscriptFont()
{
    QFont font;
    font.setStyleHint(QFont::Serif);
    const QStringList installed = QFontDatabase::families();
    for (const char *family : {"Source Serif 4", "Source Serif Pro", "Libertinus Serif",
                               "EB Garamond", "Charter", "Georgia", "Noto Serif", "DejaVu Serif"}) {
        if (installed.contains(QLatin1String(family))) {
            font.setFamily(QLatin1String(family));
            break;
        }
    }
    font.setPointSizeF(font.pointSizeF() * 1.25);
    return font;
}

} // namespace

EditorTextWidget::EditorTextWidget(QWidget *parent)
    : QPlainTextEdit(parent)
{
    setUndoRedoEnabled(false);
    setFrameShape(QFrame::NoFrame);
    setBackgroundRole(QPalette::Base); // beside the column too
    setAutoFillBackground(true);
    setFont(manuscriptFont());
    setTabStopDistance(4 * fontMetrics().horizontalAdvance(u' '));
    setTabChangesFocus(false);
    connect(document(), &QTextDocument::contentsChange, this, [this] { m_isEditing = true; });
    connect(this, &QPlainTextEdit::textChanged, this, [this] { m_isEditing = false; });
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, [this] {
        if (!m_isEditing)
            Q_EMIT caretJumped();
    });
}

QString EditorTextWidget::text() const
{
    QString text = document()->toRawText();
    text.replace(QChar(QChar::ParagraphSeparator), QChar(u'\n'));
    return text;
}

void EditorTextWidget::showText(const QString &text)
{
    const QSignalBlocker blocker(this);
    setPlainText(text);
}

void EditorTextWidget::apply(const app::TextEdit &edit, Caret caret)
{
    QTextCursor cursor(document());
    cursor.setPosition(int(edit.position));
    cursor.setPosition(int(edit.position + edit.removed), QTextCursor::KeepAnchor);
    cursor.insertText(edit.inserted);
    if (caret == Caret::GoToEdit)
        setTextCursor(cursor);
}

void EditorTextWidget::setCaret(int position)
{
    QTextCursor cursor = textCursor();
    cursor.setPosition(qBound(0, position, document()->characterCount() - 1));
    setTextCursor(cursor);
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
    return QPlainTextEdit::event(event);
}

void EditorTextWidget::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && event->modifiers().testFlag(Qt::ShiftModifier)) {
        // A line separator of the toolkit's own has no place in a text that other programs read.
        textCursor().insertText(QStringLiteral("\n"));
        ensureCursorVisible();
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
}

void EditorTextWidget::focusOutEvent(QFocusEvent *event)
{
    QPlainTextEdit::focusOutEvent(event);
    Q_EMIT focusLost();
}

void EditorTextWidget::resizeEvent(QResizeEvent *event)
{
    centreColumn();
    // The margins changed the room for the text after this event was made.
    QResizeEvent actual(viewport()->size(), event->oldSize());
    QPlainTextEdit::resizeEvent(&actual);
}

void EditorTextWidget::changeEvent(QEvent *event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        centreColumn();
}

void EditorTextWidget::centreColumn()
{
    const int column = columnCharacters * fontMetrics().averageCharWidth();
    const int room = width() - column;
    const int side = qMax(leastMargin, room / 2);
    setViewportMargins(side, leastMargin, side, 0);
}

bool EditorTextWidget::canInsertFromMimeData(const QMimeData *source) const
{
    return source->hasText();
}

void EditorTextWidget::insertFromMimeData(const QMimeData *source)
{
    QString text = source->text();
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(u'\r', u'\n');
    text.remove(QChar::Null);
    textCursor().insertText(text);
    ensureCursorVisible();
}

} // namespace vl::desktop
