// What all Core Foundation objects have in common: reference counting and the type.
#include "Orvane/platform/Quartz.hpp"
#include "desk/machine/Machine.hpp"

using orvane::desk::Machine;

void CFRelease(CFTypeRef object) {
  // An object that outlives its machine was reported as leaked when the machine ended.
  if (Machine* const machine = Machine::currentOrNull()) {
    machine->objects.release(object, "CFRelease");
  }
}

CFTypeID CFGetTypeID(CFTypeRef object) {
  const auto* const found = Machine::current().objects.find(object, "CFGetTypeID");
  return found == nullptr ? 0 : static_cast<CFTypeID>(found->kind());
}
