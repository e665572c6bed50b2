#include "app/models/readablefile.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

namespace vl::app {

namespace {

void addValue(QString &text, const QString &name, const QJsonValue &value, int depth)
{
    const QString indent(2 * depth, u' ');
    const QString start = name.isEmpty() ? indent : indent + name + QStringLiteral(": ");
    if (value.isObject()) {
        if (!name.isEmpty())
            text += start.trimmed().isEmpty() ? QString() : start + u'\n';
        const QJsonObject object = value.toObject();
        for (auto it = object.begin(); it != object.end(); ++it)
            addValue(text, it.key(), it.value(), name.isEmpty() ? depth : depth + 1);
    } else if (value.isArray()) {
        if (value.toArray().isEmpty())
            return;
        text += start + u'\n';
        for (const QJsonValue item : value.toArray())
            addValue(text, item.isObject() ? QStringLiteral("•") : QString(), item, depth + 1);
    } else if (value.isString() && value.toString().contains(u'\n')) {
        text += start + u'\n' + value.toString() + u'\n';
    } else if (value.isString()) {
        text += start + value.toString() + u'\n';
    } else if (value.isBool()) {
        text += start + (value.toBool() ? QLatin1String("true") : QLatin1String("false")) + u'\n';
    } else if (value.isDouble()) {
        text += start + value.toVariant().toString() + u'\n';
    }
}

} // namespace

QString readableFile(const QByteArray &bytes)
{
    const QJsonDocument json = QJsonDocument::fromJson(bytes);
    if (!json.isObject())
        return QString::fromUtf8(bytes);
    QString text;
    addValue(text, {}, json.object(), 0);
    return text;
}

QString readableName(const QString &path, const QByteArray &bytes)
{
    const QJsonObject json = QJsonDocument::fromJson(bytes).object();
    for (const QLatin1String key : {QLatin1String("title"), QLatin1String("name")}) {
        const QString text = json.value(key).toString();
        if (!text.isEmpty())
            return text;
    }
    return path;
}

} // namespace vl::app
