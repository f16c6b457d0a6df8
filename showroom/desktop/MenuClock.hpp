// The machine's calendar as the menu bar shows it.
#pragma once

#include <string>

#include "desk/machine/Clock.hpp"

namespace orvane::desk {

/// For example "Thu 1 Jan  0:00".
std::string menuClockText(const Clock& clock);

/// The day of the month, from 1.
int menuClockDay(const Clock& clock);

/// Nanoseconds of the machine's clock until the text changes.
std::int64_t nanosecondsToNextMinute(const Clock& clock);

}  // namespace orvane::desk
