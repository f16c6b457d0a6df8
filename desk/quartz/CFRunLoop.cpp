// Run-loop sources: their ownership, and when an event tap receives events. The run loop retains a
// source that is in one of its modes, and a source retains its port.
#include <memory>

#include "desk/machine/Machine.hpp"
#include "desk/quartz/CFObjects.hpp"

using orvane::desk::Machine;
using orvane::desk::ObjectKind;
using orvane::desk::portBehind;
using orvane::desk::RunLoop;
using orvane::desk::textOf;

const CFRunLoopMode kCFRunLoopCommonModes = CFSTR("kCFRunLoopCommonModes");

namespace {

/// Empty, and a recorded fault, for an unknown mode.
RunLoop::ModeSet modesNamed(CFRunLoopMode mode, const char* operation) {
  const std::string* const name = textOf(mode, operation);
  if (name == nullptr) {
    return 0;
  }
  if (*name == "kCFRunLoopCommonModes") {
    return RunLoop::commonModes;
  }
  if (*name == "kCFRunLoopDefaultMode") {
    return static_cast<RunLoop::ModeSet>(RunLoop::Mode::standard);
  }
  Machine::current().faults.record(std::string(operation) + ": unknown mode " + *name);
  return 0;
}

__CFRunLoopSource* sourceBehind(const void* source, const char* operation) {
  return static_cast<__CFRunLoopSource*>(
      Machine::current().objects.find(source, ObjectKind::runLoopSource, operation));
}

/// A tap receives events in the modes in which any of its port's sources is in the run loop.
void refreshModesOfTap(CFMachPortRef port) {
  Machine& machine = Machine::current();
  const auto* const object = portBehind(port, "CFRunLoop");
  auto* const tap = object == nullptr ? nullptr : machine.eventTaps.find(object->tapIdentity);
  if (tap == nullptr) {
    return;
  }
  tap->sourceModes = 0;
  for (const void* const source : machine.runLoop.sources()) {
    if (sourceBehind(source, "CFRunLoop")->port == port) {
      tap->sourceModes =
          static_cast<RunLoop::ModeSet>(tap->sourceModes | machine.runLoop.modesOf(source));
    }
  }
}

bool isRunLoop(CFRunLoopRef runLoop, const char* operation) {
  return Machine::current().objects.find(runLoop, ObjectKind::runLoop, operation) != nullptr;
}

}  // namespace

__CFRunLoopSource::__CFRunLoopSource(CFMachPortRef source)
    : Object(ObjectKind::runLoopSource), port(source) {
  Machine::current().objects.retain(port, "CFMachPortCreateRunLoopSource");
}

void __CFRunLoopSource::lastReferenceGone() {
  Machine::current().objects.release(port, "CFRunLoopSource");
}

namespace orvane::desk {

void removeSourcesOf(CFMachPortRef port) {
  Machine& machine = Machine::current();
  for (const void* const source : machine.runLoop.sources()) {
    if (sourceBehind(source, "CFMachPortInvalidate")->port == port) {
      machine.runLoop.removeSource(source, RunLoop::commonModes);
      machine.objects.release(source, "CFMachPortInvalidate");
    }
  }
}

}  // namespace orvane::desk

CFRunLoopSourceRef CFMachPortCreateRunLoopSource(CFAllocatorRef, CFMachPortRef port, CFIndex) {
  constexpr const char* operation = "CFMachPortCreateRunLoopSource";
  Machine& machine = Machine::current();
  orvane::desk::recordCall(operation);
  const auto* const object = portBehind(port, operation);
  if (object == nullptr || !object->isValid || machine.runLoop.refusesSources()) {
    return nullptr;
  }
  return machine.objects.add(std::make_unique<__CFRunLoopSource>(port));
}

CFRunLoopRef CFRunLoopGetCurrent() {
  static __CFRunLoop mainRunLoop;
  orvane::desk::ObjectRegistry::addConstant(mainRunLoop);
  return &mainRunLoop;
}

void CFRunLoopAddSource(CFRunLoopRef runLoop, CFRunLoopSourceRef source, CFRunLoopMode mode) {
  constexpr const char* operation = "CFRunLoopAddSource";
  Machine& machine = Machine::current();
  orvane::desk::recordCall(operation);
  const auto* const object = sourceBehind(source, operation);
  const RunLoop::ModeSet modes = modesNamed(mode, operation);
  if (!isRunLoop(runLoop, operation) || object == nullptr || modes == 0) {
    return;
  }
  const auto* const port = portBehind(object->port, operation);
  if (port == nullptr || !port->isValid) {
    return;
  }
  if (machine.runLoop.addSource(source, modes)) {
    machine.objects.retain(source, operation);
  }
  refreshModesOfTap(object->port);
}

void CFRunLoopRemoveSource(CFRunLoopRef runLoop, CFRunLoopSourceRef source, CFRunLoopMode mode) {
  constexpr const char* operation = "CFRunLoopRemoveSource";
  Machine& machine = Machine::current();
  orvane::desk::recordCall(operation);
  const auto* const object = sourceBehind(source, operation);
  const RunLoop::ModeSet modes = modesNamed(mode, operation);
  if (!isRunLoop(runLoop, operation) || object == nullptr || modes == 0) {
    return;
  }
  const CFMachPortRef port = object->port;
  const bool isGone = machine.runLoop.removeSource(source, modes);
  refreshModesOfTap(port);
  if (isGone) {
    machine.objects.release(source, operation);
  }
}
