// A comparison ends at the first difference, so only a hit is expensive.
#include "showroom/desktop/GlassCache.hpp"

#include <algorithm>
#include <cstring>
#include <utility>

#include "desk/canvas/Blur.hpp"
#include "desk/canvas/ImageSurface.hpp"

namespace orvane::showroom {

namespace {

std::size_t bytesOf(cairo_surface_t* surface) {
  return static_cast<std::size_t>(cairo_image_surface_get_stride(surface)) *
         static_cast<std::size_t>(cairo_image_surface_get_height(surface));
}

bool areEqual(cairo_surface_t* first, cairo_surface_t* second) {
  return cairo_image_surface_get_format(first) == cairo_image_surface_get_format(second) &&
         cairo_image_surface_get_width(first) == cairo_image_surface_get_width(second) &&
         bytesOf(first) == bytesOf(second) &&
         std::memcmp(cairo_image_surface_get_data(first), cairo_image_surface_get_data(second),
                     bytesOf(first)) == 0;
}

}  // namespace

cairo_surface_t* GlassCache::blurred(desk::SurfacePointer picture, double sigma) {
  cairo_surface_flush(picture.get());
  const auto found = std::ranges::find_if(kept_, [&](const Kept& kept) {
    return kept.sigma == sigma && areEqual(kept.picture.get(), picture.get());
  });
  if (found != kept_.end()) {
    kept_.splice(kept_.begin(), kept_, found);
    return kept_.front().blurred.get();
  }
  ++blurCount_;
  desk::SurfacePointer copy = desk::partOf(
      picture.get(), 0, 0, cairo_image_surface_get_width(picture.get()),
      cairo_image_surface_get_height(picture.get()), cairo_image_surface_get_format(picture.get()));
  desk::blurSurface(copy.get(), sigma, desk::BlurEdge::extended);
  const std::size_t bytes = 2 * bytesOf(picture.get());
  kept_.push_front({std::move(picture), sigma, std::move(copy), bytes});
  bytes_ += bytes;
  while (bytes_ > byteLimit_ && kept_.size() > 1) {
    bytes_ -= kept_.back().bytes;
    kept_.pop_back();
  }
  return kept_.front().blurred.get();
}

}  // namespace orvane::showroom
