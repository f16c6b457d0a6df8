// The names of the kinds of objects.
#include "desk/machine/Object.hpp"

namespace orvane::desk {

const char* nameOf(ObjectKind kind) {
  switch (kind) {
    case ObjectKind::string:
      return "CFString";
    case ObjectKind::number:
      return "CFNumber";
    case ObjectKind::boolean:
      return "CFBoolean";
    case ObjectKind::uuid:
      return "CFUUID";
    case ObjectKind::machPort:
      return "CFMachPort";
    case ObjectKind::runLoop:
      return "CFRunLoop";
    case ObjectKind::runLoopSource:
      return "CFRunLoopSource";
  }
  return "CFType";
}

}  // namespace orvane::desk
