#include "app/time/calendartext.h"

#include "app/time/calendarmath.h"

#include <QtCore/QCoreApplication>

namespace vl::app {

namespace {

struct CalendarText
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::CalendarText)
};

} // namespace

QString formatInstant(const core::Calendar &calendar, qint64 instant)
{
    const CalendarDate date = breakDown(calendar, instant);
    // Filled in one go: a name that looks like a placeholder is not filled again.
    //: A full date: %1 is the day, %2 the month, %3 the year. Typed dates are read back from this
    //: form, so keep the word for "Year" equal to the one translated below.
    QString text = CalendarText::tr("%1 %2, Year %3")
                       .arg(QString::number(date.day),
                            monthText(calendar, date.month, QString::number(date.month)),
                            QString::number(date.year));
    if (!calendar.eraName.isEmpty())
        text += QLatin1Char(' ') + calendar.eraName;
    if (date.hour != 0 || date.minute != 0)
        text += QStringLiteral(", ") + timeOfDayText(date.hour, date.minute);
    return text;
}

QString yearText(const core::Calendar &calendar, qint64 year)
{
    const QString number = QString::number(year);
    return calendar.eraName.isEmpty() ? number : number + QLatin1Char(' ') + calendar.eraName;
}

QString monthText(const core::Calendar &calendar, qint32 month, const QString &otherwise)
{
    const bool exists = month >= 1 && month <= calendar.months.size();
    return exists ? calendar.months[month - 1].name : otherwise;
}

QString timeOfDayText(qint32 hour, qint32 minute)
{
    return QStringLiteral("%1:%2")
        .arg(hour, 2, 10, QLatin1Char('0'))
        .arg(minute, 2, 10, QLatin1Char('0'));
}

QString yearWord()
{
    //: The word before the year in a full date such as "3 March, Year 1270".
    return CalendarText::tr("Year");
}

} // namespace vl::app
