// What the editor's text field does with keys, the clipboard and what is dropped on it.

#include "app/text/markdownstyle.h"
#include "desktop/editor/editorlayout.h"
#include "desktop/editor/livedocument.h"
#include "desktop/panels/editortextwidget.h"

#include <QtCore/QFileInfo>
#include <QtCore/QMimeData>
#include <QtCore/QScopedValueRollback>
#include <QtCore/QUrl>
#include <QtGui/QClipboard>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QImageReader>
#include <QtGui/QKeyEvent>
#include <QtGui/QTextBlock>

namespace vl::desktop {

namespace {

/// Text from elsewhere with the line ends of a body.
QString plain(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(u'\r', u'\n');
    text.replace(QChar(QChar::ParagraphSeparator), u'\n');
    text.remove(QChar::Null);
    return text;
}

QStringList pictureFiles(const QMimeData &data)
{
    QStringList files;
    const QList<QByteArray> known = QImageReader::supportedImageFormats();
    for (const QUrl &url : data.urls()) {
        const QString file = url.toLocalFile();
        if (!file.isEmpty() && known.contains(QFileInfo(file).suffix().toLower().toLatin1()))
            files.append(file);
    }
    return files;
}

} // namespace

void EditorTextWidget::keyPressEvent(QKeyEvent *event)
{
    if (!m_live)
        return;
    if (event->matches(QKeySequence::Cut)) {
        cutSelection();
        return;
    }
    beginOwnStep(event);
    const int typographicEnd = std::exchange(m_typographicEnd, -1);
    if (event->key() == Qt::Key_Backspace && event->modifiers() == Qt::NoModifier
        && typographicEnd == textCursor().position() && !textCursor().hasSelection()) {
        QTextCursor cursor = textCursor(); // as it was typed, if that was meant
        cursor.movePosition(QTextCursor::Left, QTextCursor::KeepAnchor, int(m_typographicLength));
        cursor.insertText(m_typographicPlain);
        return;
    }
    if (!takeKey(event))
        QPlainTextEdit::keyPressEvent(event);
}

/// A selection that is typed over or deleted goes as a step of its own.
void EditorTextWidget::beginOwnStep(const QKeyEvent *event)
{
    const QTextCursor cursor = textCursor();
    if (cursor.selectionEnd() - cursor.selectionStart() < 2)
        return;
    const bool changes = !event->text().isEmpty() || event->key() == Qt::Key_Backspace
                         || event->key() == Qt::Key_Delete;
    const bool isShortcut = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    if (changes && !isShortcut)
        Q_EMIT stepBegins();
}

bool EditorTextWidget::takeKey(QKeyEvent *event)
{
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (modifiers == Qt::ShiftModifier) {
            // A line separator of the toolkit's own has no place in a text that others read.
            textCursor().insertText(QStringLiteral("\n"));
            ensureCursorVisible();
            return true;
        }
        return modifiers == Qt::NoModifier && takeReturn();
    case Qt::Key_Tab:
        return modifiers == Qt::NoModifier && takeTab(true);
    case Qt::Key_Backtab:
        return takeTab(false);
    case Qt::Key_Backspace:
        return modifiers == Qt::NoModifier && takeBackspace();
    default:
        break;
    }
#ifndef Q_OS_MACOS // there it makes other letters
    // A letter with Alt was meant for a menu. Where none has it, it writes nothing.
    const bool isForMenu = (modifiers & ~Qt::ShiftModifier) == Qt::AltModifier;
    if (isForMenu && !event->text().isEmpty() && event->text().front().isPrint()) {
        event->ignore();
        return true;
    }
#endif
    const bool isShortcut = modifiers & (Qt::ControlModifier | Qt::AltModifier);
    return !isShortcut && m_isTypographic && takeTypographic(event->text());
}

void EditorTextWidget::editLine(const app::LineEdit &edit)
{
    QTextCursor cursor = textCursor();
    const int start = cursor.block().position();
    cursor.setPosition(start + int(edit.edit.position));
    cursor.setPosition(start + int(edit.edit.position + edit.edit.removed),
                       QTextCursor::KeepAnchor);
    cursor.insertText(edit.edit.inserted);
    cursor.setPosition(start + int(edit.caret));
    m_isEditing = true; // the caret goes where the edit ends
    setTextCursor(cursor);
    m_isEditing = false;
    ensureCursorVisible();
}

bool EditorTextWidget::takeReturn()
{
    const QTextCursor cursor = textCursor();
    if (cursor.hasSelection() || isInCode())
        return false;
    const auto edit = app::lineBreakEdit(cursor.block().text(), cursor.positionInBlock());
    if (edit)
        editLine(*edit);
    return edit.has_value();
}

bool EditorTextWidget::takeTab(bool inwards)
{
    const QTextCursor cursor = textCursor();
    if (cursor.hasSelection())
        return false;
    const auto edit = app::indentEdit(cursor.block().text(), cursor.positionInBlock(), inwards);
    if (edit)
        editLine(*edit);
    return edit.has_value() || !inwards; // never out of the text
}

/// Between two pieces of one line there is nothing to delete: the character before goes.
bool EditorTextWidget::takeBackspace()
{
    QTextCursor cursor = textCursor();
    const EditorLine *line = EditorLine::of(cursor.block());
    if (cursor.hasSelection() || !cursor.atBlockStart() || !line || !line->continuesLine)
        return false;
    cursor.movePosition(QTextCursor::Left);
    cursor.deletePreviousChar();
    setTextCursor(cursor);
    return true;
}

bool EditorTextWidget::isInCode() const
{
    const QTextCursor cursor = textCursor();
    const EditorLine *line = EditorLine::of(cursor.block());
    if (!line)
        return false;
    const app::MarkdownLine read = app::readMarkdownLine(cursor.block().text(), line->before);
    const int place = cursor.positionInBlock();
    for (const app::MarkdownRange &range : read.ranges)
        if (range.start < place && place <= range.start + range.length
            && (range.style & app::CodeText))
            return true;
    for (const app::MarkdownImage &image : read.images)
        if (image.pathStart <= place && place <= image.pathStart + image.pathLength)
            return true;
    return false;
}

bool EditorTextWidget::takeTypographic(const QString &typed)
{
    if (typed.size() != 1 || !QStringView(u"\"'-.").contains(typed[0]) || isInCode())
        return false;
    QTextCursor cursor = textCursor();
    const int start = cursor.selectionStart();
    const QTextBlock block = document()->findBlock(start);
    const QString before = block.text().left(start - block.position());
    if (before.count(u'`') % 2 == 1)
        return false; // code that is not closed yet
    const auto edit = app::typographicEdit(before, typed[0], QLocale());
    if (!edit)
        return false;
    const int removed = int(edit->removed);
    if (cursor.hasSelection())
        cursor.removeSelectedText();
    cursor.movePosition(QTextCursor::Left, QTextCursor::KeepAnchor, removed);
    m_typographicPlain = cursor.selectedText() + typed;
    cursor.insertText(edit->inserted);
    m_typographicLength = edit->inserted.size();
    m_typographicEnd = cursor.position();
    ensureCursorVisible();
    return true;
}

void EditorTextWidget::toggleMarks(const QString &marks)
{
    if (!m_live)
        return;
    Q_EMIT stepBegins();
    const QTextCursor cursor = textCursor();
    const QTextBlock first = document()->findBlock(cursor.selectionStart());
    const QTextBlock last = document()->findBlock(cursor.selectionEnd());
    const int start = first.position();
    QTextCursor lines(document());
    lines.setPosition(start);
    lines.setPosition(last.position() + last.length() - 1, QTextCursor::KeepAnchor);
    const QString before = plain(lines.selectedText());
    const app::SelectedText after = app::toggledMarks(
        {before, cursor.selectionStart() - start, cursor.selectionEnd() - start}, marks);
    // From the end, so that the places before stay good; one edit, so one change is told.
    const app::TextEdit edit = app::difference(before, after.text);
    lines.setPosition(start + int(edit.position));
    lines.setPosition(start + int(edit.position + edit.removed), QTextCursor::KeepAnchor);
    lines.insertText(edit.inserted);
    lines.setPosition(start + int(after.from));
    lines.setPosition(start + int(after.to), QTextCursor::KeepAnchor);
    setTextCursor(lines);
    Q_EMIT stepEnds();
}

void EditorTextWidget::cutSelection()
{
    if (!m_live || !textCursor().hasSelection())
        return;
    copy();
    const QScopedValueRollback<bool> carrying(m_isCarrying, true);
    deleteSelection();
}

void EditorTextWidget::deleteSelection()
{
    Q_EMIT stepBegins();
    textCursor().removeSelectedText();
    ensureCursorVisible();
    Q_EMIT stepEnds();
}

void EditorTextWidget::insertStep(const QString &text)
{
    if (!m_live)
        return;
    Q_EMIT stepBegins();
    const QScopedValueRollback<bool> carrying(m_isCarrying, true);
    QTextCursor cursor = textCursor();
    m_live->insert(cursor, text);
    setTextCursor(cursor);
    ensureCursorVisible();
    Q_EMIT stepEnds();
}

bool EditorTextWidget::canInsertFromMimeData(const QMimeData *source) const
{
    return source->hasText() || source->hasImage() || source->hasUrls();
}

/// Always plain text, whatever else there is; pictures only where there is no text.
void EditorTextWidget::insertFromMimeData(const QMimeData *source)
{
    const QStringList pictures = pictureFiles(*source);
    if (!pictures.isEmpty())
        Q_EMIT pictureFilesDropped(pictures);
    else if (source->hasText())
        insertStep(plain(source->text()));
    else if (source->hasImage())
        Q_EMIT picturePasted(qvariant_cast<QImage>(source->imageData()));
}

/// What is copied is the text itself: nobody's Markdown is changed into somebody's rich text.
QMimeData *EditorTextWidget::createMimeDataFromSelection() const
{
    auto *data = new QMimeData; // the clipboard owns it
    const QTextCursor cursor = textCursor();
    if (m_live)
        data->setText(m_live->textBetween(cursor.selectionStart(), cursor.selectionEnd()));
    return data;
}

void EditorTextWidget::dropEvent(QDropEvent *event)
{
    Q_EMIT stepBegins();
    {
        const QScopedValueRollback<bool> carrying(m_isCarrying, true);
        QPlainTextEdit::dropEvent(event);
    }
    Q_EMIT stepEnds();
}

void EditorTextWidget::contextMenuEvent(QContextMenuEvent *event)
{
    Q_EMIT menuRequested(event->globalPos());
}

} // namespace vl::desktop
