// The ports of event taps, and their invalidation.
#include "desk/quartz/CFMachPort.hpp"

#include "desk/machine/Machine.hpp"
#include "desk/quartz/CFRunLoop.hpp"

using orvane::desk::Machine;
using orvane::desk::ObjectKind;

void __CFMachPort::lastReferenceGone() {
  Machine& machine = Machine::current();
  machine.counters.abandonedPorts += isValid ? 1 : 0;
  isValid = false;
  machine.eventTaps.remove(tapIdentity);
}

void CFMachPortInvalidate(CFMachPortRef port) {
  Machine& machine = Machine::current();
  orvane::desk::recordCall("CFMachPortInvalidate");
  auto* const object = static_cast<__CFMachPort*>(
      machine.objects.find(port, ObjectKind::machPort, "CFMachPortInvalidate"));
  if (object == nullptr || !object->isValid) {
    return;
  }
  object->isValid = false;
  machine.eventTaps.remove(object->tapIdentity);
  orvane::desk::removeSourcesOf(port);
}
