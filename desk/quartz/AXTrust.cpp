// The application's query for the Accessibility permission.
#include "Orvane/platform/Quartz.hpp"
#include "desk/machine/Machine.hpp"

Boolean AXIsProcessTrusted() {
  orvane::desk::recordCall("AXIsProcessTrusted");
  orvane::desk::Permission& permission = orvane::desk::Machine::current().permission;
  permission.recordRequest();
  return permission.isTrusted() ? 1 : 0;
}
