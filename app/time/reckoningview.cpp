#include "app/time/reckoningview.h"

#include "app/time/calendarmath.h"
#include "app/time/calendartext.h"
#include "app/time/instant.h"

#include <QtCore/QCoreApplication>

namespace vl::app {

namespace {

struct ReckoningView
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::ReckoningView)

public:
    static QString nameOfNew() { return tr("New reckoning"); }
};

} // namespace

qint64 reckoningInstant(const core::Reckoning &reckoning, qint64 primaryInstant)
{
    return saturatedDifference(primaryInstant, reckoning.epochOffsetMinutes);
}

qint64 primaryInstant(const core::Reckoning &reckoning, qint64 reckoningInstant)
{
    return saturatedSum(reckoningInstant, reckoning.epochOffsetMinutes);
}

QString formatInstant(const core::Reckoning &reckoning, qint64 primaryInstant)
{
    return formatInstant(reckoning.calendar, reckoningInstant(reckoning, primaryInstant));
}

qint64 epochOfPrimaryYear(const core::Calendar &primary, qint64 year)
{
    CalendarDate date;
    date.year = year;
    return toInstant(primary, date);
}

qint64 primaryYearOfEpoch(const core::Calendar &primary, const core::Reckoning &reckoning)
{
    return breakDown(primary, reckoning.epochOffsetMinutes).year;
}

core::Reckoning newReckoning(const core::Calendar &primary)
{
    core::Reckoning reckoning;
    reckoning.name = ReckoningView::nameOfNew();
    reckoning.calendar = primary;
    reckoning.calendar.name.clear();
    return reckoning;
}

} // namespace vl::app
