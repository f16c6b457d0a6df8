// Releases references to GObjects.
#include "desk/canvas/CairoPointers.hpp"

#include <glib-object.h>

namespace orvane::desk {

void ObjectRelease::operator()(void* object) const {
  g_object_unref(object);
}

}  // namespace orvane::desk
