// The Accessibility permission as the application asks for it.
#include "Orvane/platform/Quartz.hpp"
#include "desk/machine/Machine.hpp"

Boolean AXIsProcessTrusted() {
  return orvane::desk::Machine::current().permission.isTrusted() ? 1 : 0;
}
