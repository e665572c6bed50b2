#pragma once

#include "app/base/result.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QString>

#include <limits>
#include <memory>
#include <optional>

namespace vl::cli {

/// Reads the members of one request strictly: the first that is missing or of another type is noted
/// and the request fails with it. What is read of a bad member is a default, so a function reads
/// all it needs and asks once.
class BatchMembers
{
    Q_DECLARE_TR_FUNCTIONS(vl::cli::Batch)

public:
    explicit BatchMembers(const QJsonObject &members);

    bool has(const char *name) const { return m_members.contains(QLatin1String(name)); }
    QString text(const char *name);
    /// The text of a member that may be missing.
    QString optionalText(const char *name);
    /// A text, or nothing for null.
    std::optional<QString> textOrNull(const char *name);
    /// An integer in the range; every 64-bit one is read exactly.
    qint64 integer(const char *name, qint64 from = std::numeric_limits<qint64>::min(),
                   qint64 to = std::numeric_limits<qint64>::max());
    qint32 integer32(const char *name);
    QJsonArray array(const char *name);
    QJsonObject object(const char *name);
    /// The members of an object inside this one; their faults count as faults of the request.
    BatchMembers members(const char *name);
    /// The same for an element of an array, which is named in messages by its place.
    BatchMembers element(const char *name, const QJsonArray &array, qsizetype place);
    /// The text at a place of an array.
    QString elementText(const char *name, const QJsonArray &array, qsizetype place);

    /// Notes a fault of the request that is found beside the types.
    void refuse(const QString &message);
    bool hasFailed() const { return !m_fault->isEmpty(); }
    app::Failure failure() const { return app::failure(*m_fault); }

private:
    BatchMembers(const QJsonObject &members, QString prefix, std::shared_ptr<QString> fault);

    QJsonValue get(const char *name);
    void mistyped(const QString &name, const QString &wanted);
    QString pathOf(const char *name) const { return m_prefix + QLatin1String(name); }

    QJsonObject m_members;
    QString m_prefix;                 ///< where this object stands in the request: "date."
    std::shared_ptr<QString> m_fault; ///< of the whole request
};

/// A JSON number that stands for an integer of 64 bits, to the last digit; nothing for any other.
std::optional<qint64> exactInteger(const QJsonValue &value);

} // namespace vl::cli
