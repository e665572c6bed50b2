#include "app/update/updateschedule.h"

#include <QtCore/QDateTime>
#include <QtCore/QStringList>

#include <algorithm>

namespace vl::app {

namespace {

constexpr qint64 secondsBetweenChecks = 86400;

/// The digits of a number without leading zeros, empty for 0 and for what is no number.
QStringView digitsOf(QStringView part)
{
    const bool isNumber = std::all_of(part.begin(), part.end(), [](QChar character) {
        return character >= u'0' && character <= u'9';
    });
    if (!isNumber)
        return {};
    while (part.startsWith(u'0'))
        part = part.sliced(1);
    return part;
}

int compareNumbers(QStringView a, QStringView b)
{
    if (a.size() != b.size())
        return a.size() < b.size() ? -1 : 1;
    return a.compare(b);
}

} // namespace

int compareVersions(const QString &a, const QString &b)
{
    const QStringList left = a.split(u'.');
    const QStringList right = b.split(u'.');
    for (qsizetype at = 0; at < std::max(left.size(), right.size()); ++at) {
        const int order = compareNumbers(digitsOf(left.value(at)), digitsOf(right.value(at)));
        if (order != 0)
            return order;
    }
    return 0;
}

bool shouldCheckForUpdates(const QString &last, const QString &now)
{
    const QDateTime present = QDateTime::fromString(now, Qt::ISODate);
    if (!present.isValid())
        return false;
    const QDateTime before = QDateTime::fromString(last, Qt::ISODate);
    // Either way round: a clock that was set back must not end the checks.
    return !before.isValid() || qAbs(before.secsTo(present)) >= secondsBetweenChecks;
}

} // namespace vl::app
