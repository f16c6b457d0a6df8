// Core Graphics' queries about a display by its number, and the text of its UUID.
#include <memory>

#include "desk/machine/Machine.hpp"
#include "desk/quartz/CFObjects.hpp"

using orvane::desk::Display;
using orvane::desk::Machine;
using orvane::desk::ObjectKind;

CFUUIDRef CGDisplayCreateUUIDFromDisplayID(std::uint32_t displayID) {
  Machine& machine = Machine::current();
  const Display* const display = machine.displays.find(displayID);
  if (display == nullptr || !display->uuid) {
    return nullptr;
  }
  return machine.objects.add(std::make_unique<__CFUUID>(*display->uuid));
}

boolean_t CGDisplayIsMain(CGDirectDisplayID display) {
  const Display* const main = Machine::current().displays.main();
  return main != nullptr && main->number == display ? 1 : 0;
}

boolean_t CGDisplayIsBuiltin(CGDirectDisplayID display) {
  const Display* const found = Machine::current().displays.find(display);
  return found != nullptr && found->isBuiltIn ? 1 : 0;
}

CFStringRef CFUUIDCreateString(CFAllocatorRef, CFUUIDRef uuid) {
  auto& objects = Machine::current().objects;
  const auto* const object =
      static_cast<const __CFUUID*>(objects.find(uuid, ObjectKind::uuid, "CFUUIDCreateString"));
  return object == nullptr ? nullptr : objects.add(std::make_unique<__CFString>(object->text));
}
