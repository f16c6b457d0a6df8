// Accounts for the size of the masks.
#include "desk/canvas/MaskCache.hpp"

namespace orvane::desk {

const Mask& MaskCache::keep(const MaskKey& key, Mask mask) {
  std::size_t weight = 0;
  if (mask.surface) {
    weight = static_cast<std::size_t>(cairo_image_surface_get_stride(mask.surface.get())) *
             static_cast<std::size_t>(cairo_image_surface_get_height(mask.surface.get()));
  }
  if (bytes_ + weight > byteLimit_) {
    masks_.clear();
    bytes_ = 0;
  }
  bytes_ += weight;
  return masks_.insert_or_assign(key.bytes(), std::move(mask)).first->second;
}

}  // namespace orvane::desk
