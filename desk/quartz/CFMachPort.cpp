// The ports of event taps, and their invalidation.
#include "desk/machine/Machine.hpp"
#include "desk/quartz/CFObjects.hpp"

using orvane::desk::Machine;

namespace orvane::desk {

__CFMachPort* portBehind(CFMachPortRef port, const char* operation) {
  return static_cast<__CFMachPort*>(
      Machine::current().objects.find(port, ObjectKind::machPort, operation));
}

}  // namespace orvane::desk

void __CFMachPort::lastReferenceGone() {
  Machine& machine = Machine::current();
  machine.counters.abandonedPorts += isValid ? 1 : 0;
  isValid = false;
  machine.eventTaps.remove(tapIdentity);
}

void CFMachPortInvalidate(CFMachPortRef port) {
  Machine& machine = Machine::current();
  orvane::desk::recordCall("CFMachPortInvalidate");
  auto* const object = orvane::desk::portBehind(port, "CFMachPortInvalidate");
  if (object == nullptr || !object->isValid) {
    return;
  }
  object->isValid = false;
  machine.eventTaps.remove(object->tapIdentity);
  orvane::desk::removeSourcesOf(port);
}
