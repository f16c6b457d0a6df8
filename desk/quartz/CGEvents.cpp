// Event taps and the events that they see.
#include <memory>

#include "desk/machine/Event.hpp"
#include "desk/machine/Machine.hpp"
#include "desk/quartz/CFMachPort.hpp"

using orvane::desk::EventTap;
using orvane::desk::Machine;
using orvane::desk::ObjectKind;

namespace {

EventTap* tapOf(CFMachPortRef port, const char* operation) {
  Machine& machine = Machine::current();
  const auto* const object =
      static_cast<const __CFMachPort*>(machine.objects.find(port, ObjectKind::machPort, operation));
  return object == nullptr ? nullptr : machine.eventTaps.find(object->tapIdentity);
}

}  // namespace

CFMachPortRef CGEventTapCreate(CGEventTapLocation, CGEventTapPlacement place,
                               CGEventTapOptions options, CGEventMask eventsOfInterest,
                               CGEventTapCallBack callback, void* userInfo) {
  Machine& machine = Machine::current();
  orvane::desk::recordCall("CGEventTapCreate");
  if (!machine.permission.isTrusted()) {
    return nullptr;
  }
  const auto tap = machine.eventTaps.create(place, options, eventsOfInterest, callback, userInfo);
  return tap ? machine.objects.add(std::make_unique<__CFMachPort>(*tap)) : nullptr;
}

void CGEventTapEnable(CFMachPortRef tap, bool enable) {
  orvane::desk::recordCall("CGEventTapEnable", {enable});
  if (EventTap* const found = tapOf(tap, "CGEventTapEnable")) {
    found->isEnabled = enable && found->canBeEnabled;
  }
}

bool CGEventTapIsEnabled(CFMachPortRef tap) {
  const EventTap* const found = tapOf(tap, "CGEventTapIsEnabled");
  return found != nullptr && found->isEnabled;
}

CGEventFlags CGEventGetFlags(CGEventRef event) {
  if (event == nullptr) {
    Machine::current().faults.record("CGEventGetFlags: null instead of an event");
    return CGEventFlags{};
  }
  return event->flags;
}

CGPoint CGEventGetLocation(CGEventRef event) {
  if (event == nullptr) {
    Machine::current().faults.record("CGEventGetLocation: null instead of an event");
    return {};
  }
  return event->location;
}

void CGEventSetLocation(CGEventRef event, CGPoint location) {
  if (event == nullptr) {
    Machine::current().faults.record("CGEventSetLocation: null instead of an event");
    return;
  }
  event->location = location;
}
