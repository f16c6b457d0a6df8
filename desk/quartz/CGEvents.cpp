// Event taps and the events that they see.
#include <memory>
#include <string>

#include "desk/machine/Event.hpp"
#include "desk/machine/Machine.hpp"
#include "desk/quartz/CFObjects.hpp"

using orvane::desk::EventTap;
using orvane::desk::Machine;

namespace {

EventTap* tapOf(CFMachPortRef port, const char* operation) {
  const auto* const object = orvane::desk::portBehind(port, operation);
  return object == nullptr ? nullptr : Machine::current().eventTaps.find(object->tapIdentity);
}

/// False, and a recorded fault, for null.
bool isEvent(CGEventRef event, const char* operation) {
  if (event == nullptr) {
    Machine::current().faults.record(std::string(operation) + ": null instead of an event");
  }
  return event != nullptr;
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
  return isEvent(event, "CGEventGetFlags") ? event->flags : CGEventFlags{};
}

CGPoint CGEventGetLocation(CGEventRef event) {
  return isEvent(event, "CGEventGetLocation") ? event->location : CGPoint{};
}

void CGEventSetLocation(CGEventRef event, CGPoint location) {
  if (isEvent(event, "CGEventSetLocation")) {
    event->location = location;
  }
}
