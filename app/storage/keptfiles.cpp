#include "app/storage/keptfiles.h"

#include "app/base/files.h"

#include <QtCore/QDir>

#include <algorithm>

namespace vl::app {

namespace {

constexpr QStringView timeFormat(u"yyyyMMdd'T'HHmmsszzz'Z'");
constexpr int timeSize = 19;
constexpr int mostDays = 60; // that are remembered
constexpr qint64 mostDayBytes = 4096;

QDateTime stampOf(const QString &name)
{
    QDateTime time = QDateTime::fromString(name.left(timeSize), timeFormat);
    time.setTimeSpec(Qt::UTC);
    return time;
}

} // namespace

KeptFiles::KeptFiles(QString folder, QString extension, Clock now)
    : m_folder(std::move(folder))
    , m_extension(std::move(extension))
    , m_now(std::move(now))
{
}

QString KeptFiles::newName(const QString &rest) const
{
    QDateTime now = m_now().toUTC();
    if (!now.isValid() || now.date().year() < 1970 || now.date().year() > 9999)
        now = QDateTime::fromMSecsSinceEpoch(0, Qt::UTC);
    return now.toString(timeFormat) + u'-' + rest + m_extension;
}

QStringList KeptFiles::all() const
{
    QStringList names = QDir(m_folder).entryList({u'*' + m_extension}, QDir::Files);
    names.removeIf([](const QString &name) {
        return name.size() <= timeSize || name.at(timeSize) != u'-' || !stampOf(name).isValid();
    });
    std::sort(names.begin(), names.end(), std::greater<>());
    return names;
}

QDateTime KeptFiles::timeIn(const QString &name) const
{
    const QDateTime time = stampOf(name);
    return time > m_now() ? QDateTime() : time;
}

bool KeptFiles::isTooOld(const QString &name) const
{
    const QDateTime time = timeIn(name);
    return time.isValid() && time.daysTo(m_now()) > days;
}

QStringList KeptFiles::names() const
{
    QStringList names = all();
    names.removeIf([this](const QString &name) { return isTooOld(name); });
    return names;
}

/// The days on which the folder was looked at, one a line, today among them.
QList<QDate> KeptFiles::noteDay() const
{
    const QString path = m_folder + QStringLiteral("/days.txt");
    QList<QDate> seen;
    if (const Result<QByteArray> bytes = readRegularFile(path, QString(), mostDayBytes)) {
        for (const QByteArray &line : bytes->split('\n')) {
            const QDate date = QDate::fromString(QString::fromLatin1(line), Qt::ISODate);
            if (date.isValid() && !seen.contains(date))
                seen.append(date);
        }
    }
    const QDate today = m_now().toUTC().date();
    if (seen.contains(today) || !today.isValid())
        return seen;
    seen.append(today);
    if (seen.size() > mostDays)
        seen.removeFirst();
    QByteArray text;
    for (const QDate &date : std::as_const(seen))
        text += date.toString(Qt::ISODate).toLatin1() + '\n';
    (void)writeFile(path, text, {}, Durability::Atomic); // without it all is kept for longer
    return seen;
}

QStringList KeptFiles::outworn(int most) const
{
    const QStringList names = all();
    if (names.isEmpty())
        return {};
    const QList<QDate> seen = noteDay();
    QStringList outworn = names.mid(most);
    for (const QString &name : names.first(std::min<qsizetype>(most, names.size()))) {
        const QDate last = stampOf(name).date().addDays(days);
        const auto proofs = std::count_if(seen.begin(), seen.end(),
                                          [&last](const QDate &date) { return date > last; });
        if (isTooOld(name) && proofs >= provingDays)
            outworn.append(name);
    }
    return outworn;
}

} // namespace vl::app
