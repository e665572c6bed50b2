#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QJsonObject>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

namespace vl::app {

/// Two versions of a JSON object that were made from one, brought together member by member. Texts
/// that both sides changed are merged line by line, so that two people may work on two paragraphs
/// of one scene.
struct JsonMerge
{
    QJsonObject object;
    QStringList conflicts; ///< the members that both changed differently; the local ones stand
    /// The text of several lines that is among the conflicts, and its merge with conflict markers;
    /// empty unless it is the only conflict.
    QString textKey;
    QString markedText;

    bool isClean() const { return conflicts.isEmpty(); }

    static JsonMerge merge(const QJsonObject &base, const QJsonObject &local,
                           const QJsonObject &remote);
};

/// The merge of a project's file in the program's own form; nothing when it is not clean, or would
/// be no valid file of that path.
std::optional<QByteArray> mergeMembers(const QString &path, const QByteArray &base,
                                       const QByteArray &local, const QByteArray &remote);

} // namespace vl::app
