#include "cli/batchmembers.h"

#include <QtCore/QVariant>

#include <cmath>

namespace vl::cli {

std::optional<qint64> exactInteger(const QJsonValue &value)
{
    if (!value.isDouble())
        return std::nullopt;
    // What stands as an integer is kept as one; anything beyond 64 bits, or with a point or an
    // exponent, became a double.
    const QVariant variant = value.toVariant();
    if (variant.typeId() == QMetaType::LongLong)
        return variant.toLongLong();
    constexpr double largestExact = 9007199254740992.0; // 2^53
    const double number = value.toDouble();
    if (std::trunc(number) != number || std::abs(number) > largestExact)
        return std::nullopt;
    return qint64(number);
}

BatchMembers::BatchMembers(const QJsonObject &members)
    : BatchMembers(members, QString(), std::make_shared<QString>())
{
}

BatchMembers::BatchMembers(const QJsonObject &members, QString prefix,
                           std::shared_ptr<QString> fault)
    : m_members(members)
    , m_prefix(std::move(prefix))
    , m_fault(std::move(fault))
{
}

QJsonValue BatchMembers::get(const char *name)
{
    const QJsonValue value = m_members.value(QLatin1String(name));
    if (value.isUndefined())
        refuse(tr("The member \"%1\" is missing.").arg(pathOf(name)));
    return value;
}

void BatchMembers::mistyped(const QString &name, const QString &wanted)
{
    refuse(tr("The member \"%1\" must be %2.").arg(name, wanted));
}

void BatchMembers::refuse(const QString &message)
{
    if (m_fault->isEmpty())
        *m_fault = message;
}

QString BatchMembers::text(const char *name)
{
    const QJsonValue value = get(name);
    if (!value.isString())
        mistyped(pathOf(name), tr("a string"));
    return value.toString();
}

QString BatchMembers::optionalText(const char *name)
{
    return has(name) ? text(name) : QString();
}

std::optional<QString> BatchMembers::textOrNull(const char *name)
{
    const QJsonValue value = get(name);
    if (value.isNull())
        return std::nullopt;
    if (!value.isString())
        mistyped(pathOf(name), tr("a string or null"));
    return value.toString();
}

qint64 BatchMembers::integer(const char *name, qint64 from, qint64 to)
{
    const QJsonValue value = get(name);
    const std::optional<qint64> number = exactInteger(value);
    if (!number)
        mistyped(pathOf(name), tr("an integer of 64 bits"));
    else if (*number < from || *number > to)
        mistyped(pathOf(name), tr("an integer from %1 to %2").arg(from).arg(to));
    return number.value_or(0);
}

qint32 BatchMembers::integer32(const char *name)
{
    return qint32(
        integer(name, std::numeric_limits<qint32>::min(), std::numeric_limits<qint32>::max()));
}

QJsonArray BatchMembers::array(const char *name)
{
    const QJsonValue value = get(name);
    if (!value.isArray())
        mistyped(pathOf(name), tr("an array"));
    return value.toArray();
}

QJsonObject BatchMembers::object(const char *name)
{
    const QJsonValue value = get(name);
    if (!value.isObject())
        mistyped(pathOf(name), tr("an object"));
    return value.toObject();
}

BatchMembers BatchMembers::members(const char *name)
{
    return BatchMembers(object(name), pathOf(name) + QLatin1Char('.'), m_fault);
}

BatchMembers BatchMembers::element(const char *name, const QJsonArray &array, qsizetype place)
{
    const QString path = QStringLiteral("%1[%2]").arg(pathOf(name)).arg(place);
    const QJsonValue value = array.at(place);
    if (!value.isObject())
        mistyped(path, tr("an object"));
    return BatchMembers(value.toObject(), path + QLatin1Char('.'), m_fault);
}

QString BatchMembers::elementText(const char *name, const QJsonArray &array, qsizetype place)
{
    const QJsonValue value = array.at(place);
    if (!value.isString())
        mistyped(QStringLiteral("%1[%2]").arg(pathOf(name)).arg(place), tr("a string"));
    return value.toString();
}

} // namespace vl::cli
