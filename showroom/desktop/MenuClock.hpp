// The clock of the menu bar.
#pragma once

#include <string>

#include "desk/machine/Clock.hpp"

namespace orvane::showroom {

/// For example "Thu 1 Jan  0:00".
std::string menuClockText(const desk::Clock& clock);

/// The day of the month, from 1.
int menuClockDay(const desk::Clock& clock);

/// Nanoseconds of the machine's clock until the text changes.
std::int64_t nanosecondsToNextMinute(const desk::Clock& clock);

}  // namespace orvane::showroom
