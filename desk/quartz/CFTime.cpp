// The calendar clock and the media clock, both the machine's virtual one.
#include "Orvane/platform/Quartz.hpp"
#include "desk/machine/Machine.hpp"

CFAbsoluteTime CFAbsoluteTimeGetCurrent() {
  return orvane::desk::Machine::current().clock.calendarTime();
}

CFTimeInterval CACurrentMediaTime() {
  return orvane::desk::Machine::current().clock.mediaTime();
}
