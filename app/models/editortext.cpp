#include "app/models/editortext.h"

#include <algorithm>

namespace vl::app {

namespace {

bool isOddLineEnd(QChar c)
{
    const char16_t unit = c.unicode();
    return unit == u'\r' || unit == 0x2029 || unit == 0xfdd0 || unit == 0xfdd1;
}

bool isShownAsIs(QStringView body)
{
    return std::none_of(body.begin(), body.end(), isOddLineEnd);
}

bool isCrLf(QStringView body, qsizetype position)
{
    return body[position] == u'\r' && position + 1 < body.size() && body[position + 1] == u'\n';
}

} // namespace

TextEdit difference(QStringView before, QStringView after)
{
    const qsizetype shorter = std::min(before.size(), after.size());
    qsizetype head = 0;
    while (head < shorter && before[head] == after[head])
        ++head;
    if (head > 0 && head < std::max(before.size(), after.size())
        && before[head - 1].isHighSurrogate())
        --head;
    qsizetype tail = 0;
    while (tail < shorter - head
           && before[before.size() - 1 - tail] == after[after.size() - 1 - tail])
        ++tail;
    if (tail > 0 && before[before.size() - tail].isLowSurrogate())
        --tail;
    return {head, before.size() - tail - head,
            after.mid(head, after.size() - tail - head).toString()};
}

TextEdit difference(QStringView before, QStringView after, qsizetype caret)
{
    TextEdit edit = difference(before, after);
    const bool isRemoval = edit.inserted.isEmpty();
    if (edit.isEmpty() || (!isRemoval && edit.removed > 0))
        return edit;
    const QStringView whole = isRemoval ? before : after;
    const qsizetype length = isRemoval ? edit.removed : edit.inserted.size();
    // The edit was found as far right as it fits; it may move left while it changes nothing.
    qsizetype least = edit.position;
    const qsizetype wanted = std::max<qsizetype>(0, isRemoval ? caret - length : caret);
    while (least > wanted && whole[least - 1] == whole[least - 1 + length])
        --least;
    qsizetype position = edit.position;
    if (least == wanted)
        position = wanted;
    else if (isRemoval && caret >= least && caret <= edit.position)
        position = caret;
    if (position < whole.size() && whole[position].isLowSurrogate())
        return edit;
    edit.position = position;
    if (!isRemoval)
        edit.inserted = after.sliced(position, length).toString();
    return edit;
}

TextEdit rebased(const TextEdit &edit, const TextEdit &other)
{
    const qsizetype editEnd = edit.position + edit.removed;
    const qsizetype otherEnd = other.position + other.removed;
    if (editEnd <= other.position)
        return edit;
    if (edit.position >= otherEnd) {
        TextEdit moved = edit;
        moved.position += other.inserted.size() - other.removed;
        return moved;
    }
    // Where they overlap, what the other put in stays; the rest of both ranges goes.
    const qsizetype start = std::min(edit.position, other.position);
    const qsizetype length =
        other.position - start + other.inserted.size() + std::max<qsizetype>(0, editEnd - otherEnd);
    return {start, length,
            edit.position < other.position ? edit.inserted + other.inserted
                                           : other.inserted + edit.inserted};
}

QString shownText(const QString &body)
{
    if (isShownAsIs(body))
        return body;
    QString shown;
    shown.reserve(body.size());
    for (qsizetype i = 0; i < body.size(); ++i) {
        if (isCrLf(body, i))
            continue; // its "\n" follows
        shown.append(isOddLineEnd(body[i]) ? QChar(u'\n') : body[i]);
    }
    return shown;
}

qsizetype shownPosition(const QString &body, qsizetype bodyPosition)
{
    const qsizetype end = std::clamp<qsizetype>(bodyPosition, 0, body.size());
    qsizetype shown = end;
    for (qsizetype i = 0; i < end; ++i)
        shown -= isCrLf(body, i);
    return shown;
}

qsizetype bodyPosition(const QString &body, qsizetype shownPosition)
{
    qsizetype position = 0;
    for (qsizetype shown = 0; position < body.size() && shown < shownPosition; ++shown)
        position += isCrLf(body, position) ? 2 : 1;
    return position;
}

QString bodyAfterEdit(const QString &body, const QString &edited)
{
    if (isShownAsIs(body))
        return edited;
    const TextEdit edit = difference(shownText(body), edited);
    if (edit.isEmpty())
        return body;
    const qsizetype from = bodyPosition(body, edit.position);
    const qsizetype to = bodyPosition(body, edit.position + edit.removed);
    QString result = body;
    result.replace(from, to - from, edit.inserted);
    return result;
}

} // namespace vl::app
