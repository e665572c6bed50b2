#pragma once

#include "core/calendar.h"

#include <QtCore/QString>

namespace vl::app {

/// The range of years that the epoch of a reckoning may be entered in.
inline constexpr int lowestEpochYear = -1'000'000;
inline constexpr int highestEpochYear = 1'000'000;

/// The instant as the reckoning's own calendar counts it; beyond 64 bits it stops at their end.
qint64 reckoningInstant(const core::Reckoning &reckoning, qint64 primaryInstant);

/// The instant on the primary line of one that the reckoning's own calendar counts; beyond 64 bits
/// it stops at their end.
qint64 primaryInstant(const core::Reckoning &reckoning, qint64 reckoningInstant);

/// The full date of an instant of the primary line, in the reckoning's words.
QString formatInstant(const core::Reckoning &reckoning, qint64 primaryInstant);

/// The epoch of a reckoning whose own Year 1 begins with this year of the primary calendar.
qint64 epochOfPrimaryYear(const core::Calendar &primary, qint64 year);

/// In which primary year the reckoning starts to count.
qint64 primaryYearOfEpoch(const core::Calendar &primary, const core::Reckoning &reckoning);

/// The reckoning offered first: it names all as the primary calendar does and begins with it.
core::Reckoning newReckoning(const core::Calendar &primary);

} // namespace vl::app
