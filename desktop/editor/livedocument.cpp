#include "desktop/editor/livedocument.h"

#include "desktop/editor/editorlayout.h"

#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>

#include <algorithm>

namespace vl::desktop {

namespace {

constexpr qsizetype longestLine = 32768; // beyond, a key would wait for the whole line's layout
constexpr qsizetype pieceSize = 16384;
constexpr qsizetype furthestBlank = 200;

/// Where to cut a piece off a line: behind white space when some is near, never inside a character.
qsizetype cutPlace(QStringView line)
{
    for (qsizetype i = pieceSize; i > pieceSize - furthestBlank; --i)
        if (line[i - 1].isSpace())
            return i;
    return line[pieceSize].isLowSurrogate() ? pieceSize - 1 : pieceSize;
}

struct Pieces
{
    QString text;
    QList<int> continued; ///< numbers of the lines that go on with the one before
};

Pieces inPieces(const QString &text)
{
    Pieces pieces;
    int number = 0;
    for (qsizetype start = 0;;) {
        const qsizetype end = text.indexOf(u'\n', start);
        QStringView line = QStringView(text).sliced(start, (end < 0 ? text.size() : end) - start);
        while (line.size() > longestLine) {
            const qsizetype cut = cutPlace(line);
            pieces.text += line.first(cut);
            pieces.text += u'\n';
            pieces.continued.append(++number);
            line = line.sliced(cut);
        }
        pieces.text += line;
        if (end < 0)
            return pieces;
        pieces.text += u'\n';
        ++number;
        start = end + 1;
    }
}

bool hasLongLine(const QString &text)
{
    if (text.size() <= longestLine)
        return false;
    for (qsizetype start = 0;;) {
        const qsizetype end = text.indexOf(u'\n', start);
        if ((end < 0 ? text.size() : end) - start > longestLine)
            return true;
        if (end < 0)
            return false;
        start = end + 1;
    }
}

bool isContinued(const QTextBlock &block)
{
    const EditorLine *line = EditorLine::of(block);
    return line && line->continuesLine;
}

} // namespace

LiveDocument::LiveDocument(const core::ContentId &id, QObject *parent)
    : QObject(parent)
    , m_id(id)
    , m_document(new QTextDocument(this))
    , m_layout(new EditorLayout(m_document))
{
    m_document->setUndoRedoEnabled(false);
    m_document->setDocumentLayout(m_layout);
    connect(m_document, &QTextDocument::contentsChange, this,
            [this](int position, int, int added) { noteEdit(position, added); });
}

void LiveDocument::noteInStep(const QString &newBody)
{
    body = newBody;
    hasTyped = false;
    m_editedHead = m_editedTail = m_document->characterCount() - 1;
}

/// The reported range may be wider than the edit, and count the end of the last paragraph too.
void LiveDocument::noteEdit(int position, int added)
{
    const int behind = m_document->characterCount() - 1 - (position + added);
    m_editedHead = qMin(m_editedHead, position);
    m_editedTail = qMin(m_editedTail, qMax(0, behind));
}

app::PendingText LiveDocument::pendingText() const
{
    // A piece's seam may come and go with an edit, so that places before and after it do not agree.
    if (m_hasPieces)
        return {m_id, 0, 0, text()};
    const int last = m_document->characterCount() - 1;
    QTextCursor cursor(m_document);
    cursor.setPosition(qMin(m_editedHead, last));
    cursor.setPosition(qMax(cursor.position(), last - m_editedTail), QTextCursor::KeepAnchor);
    QString typed = cursor.selectedText();
    typed.replace(QChar(QChar::ParagraphSeparator), QChar(u'\n'));
    return {m_id, cursor.selectionStart(), last - cursor.selectionEnd(), typed};
}

QString LiveDocument::text() const
{
    QString text = m_document->toRawText();
    text.replace(QChar(QChar::ParagraphSeparator), QChar(u'\n'));
    if (!m_hasPieces)
        return text;
    QString joined;
    joined.reserve(text.size());
    for (QTextBlock block = m_document->begin(); block.isValid(); block = block.next()) {
        if (isContinued(block))
            joined.chop(1);
        joined += QStringView(text)
                      .sliced(block.position())
                      .first(qMin<qsizetype>(block.length(), text.size() - block.position()));
    }
    return joined;
}

QString LiveDocument::textBetween(int from, int to) const
{
    const qsizetype start = toShown(from);
    return text().sliced(start, toShown(to) - start);
}

void LiveDocument::setText(const QString &text)
{
    m_document->setPlainText(QString());
    m_hasPieces = false;
    QTextCursor cursor(m_document);
    insert(cursor, text);
}

QTextCursor LiveDocument::apply(const app::TextEdit &edit)
{
    QTextCursor cursor(m_document);
    cursor.setPosition(toDocument(edit.position));
    cursor.setPosition(toDocument(edit.position + edit.removed), QTextCursor::KeepAnchor);
    insert(cursor, edit.inserted);
    return cursor;
}

void LiveDocument::insert(QTextCursor &cursor, const QString &text)
{
    if (!hasLongLine(text)) {
        cursor.insertText(text);
        return;
    }
    const Pieces pieces = inPieces(text);
    const int first = m_document->findBlock(cursor.selectionStart()).blockNumber();
    m_hasPieces = true;
    cursor.insertText(pieces.text);
    for (const int number : pieces.continued)
        if (EditorLine *line = EditorLine::of(m_document->findBlockByNumber(first + number)))
            line->continuesLine = true;
}

int LiveDocument::toDocument(qsizetype shown) const
{
    qsizetype position = shown;
    if (m_hasPieces) {
        for (QTextBlock block = m_document->begin().next(); block.isValid(); block = block.next()) {
            if (block.position() > position + (isContinued(block) ? 1 : 0))
                break;
            position += isContinued(block);
        }
    }
    return int(std::clamp<qsizetype>(position, 0, m_document->characterCount() - 1));
}

qsizetype LiveDocument::toShown(int position) const
{
    qsizetype shown = position;
    if (m_hasPieces)
        for (QTextBlock block = m_document->begin();
             block.isValid() && block.position() <= position; block = block.next())
            shown -= isContinued(block);
    return shown;
}

} // namespace vl::desktop
