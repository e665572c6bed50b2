#pragma once

#include "core/calendar.h"
#include "core/enumtexts.h"

#include <QtCore/QList>
#include <QtCore/QString>

#include <functional>

namespace vl::app {

/// What a ruler counts its ticks in.
enum class TickUnit
{
    Minute = 0,
    Hour = 1,
    Day = 2,
    Month = 3,
    Year = 4,
};

inline constexpr auto tickUnitTexts =
    core::makeEnumTexts<TickUnit>("minute", "hour", "day", "month", "year");

/// The distance between two ticks of a ruler.
struct TickStep
{
    TickUnit unit = TickUnit::Minute;
    qint64 count = 1; ///< at least 1; anything below counts as 1

    bool operator==(const TickStep &) const = default;
};

/// The label of a tick at an instant.
QString tickLabel(const core::Calendar &calendar, TickUnit unit, qint64 instant);

/// The coarser label, printed once for each span above the ticks; empty for years.
QString contextLabel(const core::Calendar &calendar, TickUnit unit, qint64 instant);

/// A text as wide as the tick labels of the unit get, to measure with.
QString widestLabel(const core::Calendar &calendar, TickUnit unit);

/// A text as wide as the context labels of the unit get, to measure with; empty for years.
QString widestContext(const core::Calendar &calendar, TickUnit unit);

/// The length of a step in minutes, that of an average month or year for these units; it may be 0
/// where the calendar has more months than days, and beyond 64 bits it stops at their end.
qint64 nominalLength(const core::Calendar &calendar, TickStep step);

/// The steps a ruler chooses from, from one minute to fifty million years, in order of their
/// length.
const QList<TickStep> &tickSteps();

/// The first step whose nominal length takes at least the spacing that its unit needs, in pixels;
/// the longest step when none does.
TickStep chooseTickStep(const core::Calendar &calendar, double pixelsPerMinute,
                        const std::function<double(TickUnit)> &neededSpacing);

/// Where ticks begin for a view that starts at the instant; clamped to 64 bits. Where the
/// calendar's months or years have no length, it may lie before the instant.
qint64 firstTick(const core::Calendar &calendar, TickStep step, qint64 instant);

/// The ticks from start to end, both included, in ascending order and each once, at most `limit` of
/// them. None when end <= start, or when the range reaches beyond 5 760 000 000 000 000 minutes on
/// either side of minute 0. Months without days add no ticks of their own.
QList<qint64> ticksInRange(const core::Calendar &calendar, TickStep step, qint64 start, qint64 end,
                           qsizetype limit = 10'000);

} // namespace vl::app
