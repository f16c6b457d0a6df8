// The Accessibility permission as the application asks for it.
#include "Orvane/platform/Quartz.hpp"
#include "desk/machine/Machine.hpp"

Boolean AXIsProcessTrusted() {
  orvane::desk::Permission& permission = orvane::desk::Machine::current().permission;
  permission.noteAsked();
  return permission.isTrusted() ? 1 : 0;
}
