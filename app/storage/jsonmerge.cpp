#include "app/storage/jsonmerge.h"

#include "app/storage/linemerge.h"
#include "app/storage/ownform.h"

#include <QtCore/QJsonDocument>

#include <set>

namespace vl::app {

namespace {

/// Objects this deep inside each other are brought together member by member. Those of a project
/// are never that deep; a file that somebody made for it would cost without end.
constexpr int deepestMembers = 32;

/// One member of the three objects; undefined where it is missing.
struct Member
{
    QJsonValue base;
    QJsonValue local;
    QJsonValue remote;
};

/// The value when at most one side changed it, or both alike; nothing when a merge has to be tried.
const QJsonValue *plainChoice(const Member &member)
{
    if (member.local == member.remote || member.remote == member.base)
        return &member.local;
    return member.local == member.base ? &member.remote : nullptr;
}

JsonMerge mergeAt(int depth, const QJsonObject &base, const QJsonObject &local,
                  const QJsonObject &remote)
{
    JsonMerge result;
    std::set<QString> keys;
    for (const QJsonObject *side : {&local, &remote})
        for (auto it = side->begin(); it != side->end(); ++it)
            keys.insert(it.key());
    for (const QString &key : keys) {
        const auto member = [&key](const QJsonObject &object) {
            return object.contains(key) ? object.value(key) : QJsonValue(QJsonValue::Undefined);
        };
        const Member values{member(base), member(local), member(remote)};
        QJsonValue chosen = values.local;
        if (const QJsonValue *plain = plainChoice(values)) {
            chosen = *plain;
        } else if (depth < deepestMembers && values.base.isObject() && values.local.isObject()
                   && values.remote.isObject()) {
            const JsonMerge inner = mergeAt(depth + 1, values.base.toObject(),
                                            values.local.toObject(), values.remote.toObject());
            chosen = inner.object;
            for (const QString &conflict : inner.conflicts)
                result.conflicts.append(key + u'.' + conflict);
        } else if (values.base.isString() && values.local.isString() && values.remote.isString()) {
            const MergedText<QString> text = mergeLines(
                values.base.toString(), values.local.toString(), values.remote.toString());
            if (text.conflicts == 0) {
                chosen = text.text;
            } else {
                result.conflicts.append(key);
                result.textKey = key;
                result.markedText = text.text;
            }
        } else {
            result.conflicts.append(key);
        }
        if (!chosen.isUndefined())
            result.object.insert(key, chosen);
    }
    if (result.conflicts.size() != 1 || result.textKey.isEmpty()) {
        result.textKey.clear();
        result.markedText.clear();
    }
    return result;
}

} // namespace

JsonMerge JsonMerge::merge(const QJsonObject &base, const QJsonObject &local,
                           const QJsonObject &remote)
{
    return mergeAt(0, base, local, remote);
}

std::optional<QByteArray> mergeMembers(const QString &path, const QByteArray &base,
                                       const QByteArray &local, const QByteArray &remote)
{
    const QJsonDocument documents[] = {QJsonDocument::fromJson(base),
                                       QJsonDocument::fromJson(local),
                                       QJsonDocument::fromJson(remote)};
    for (const QJsonDocument &document : documents)
        if (!document.isObject())
            return std::nullopt;
    const JsonMerge merged =
        JsonMerge::merge(documents[0].object(), documents[1].object(), documents[2].object());
    if (!merged.isClean())
        return std::nullopt;
    const QByteArray bytes = QJsonDocument(merged.object).toJson();
    JsonParser parser;
    const ProjectFile own = inOwnForm(parser, {path, bytes});
    // Under whatever name it stands, the merge is about the same object as the versions of it.
    return own.path == inOwnForm(parser, {path, local}).path ? std::optional(own.bytes)
                                                             : std::nullopt;
}

} // namespace vl::app
