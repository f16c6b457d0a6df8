// The text of a universally unique identifier.
#include <memory>

#include "desk/machine/Machine.hpp"
#include "desk/quartz/CFObjects.hpp"

using orvane::desk::Machine;
using orvane::desk::ObjectKind;

CFStringRef CFUUIDCreateString(CFAllocatorRef, CFUUIDRef uuid) {
  auto& objects = Machine::current().objects;
  const auto* const object =
      static_cast<const __CFUUID*>(objects.find(uuid, ObjectKind::uuid, "CFUUIDCreateString"));
  return object == nullptr ? nullptr : objects.add(std::make_unique<__CFString>(object->text));
}
