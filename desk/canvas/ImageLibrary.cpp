// Caches images at the sizes at which they are shown.
#include "desk/canvas/ImageLibrary.hpp"

#include <algorithm>
#include <cmath>

#include "desk/canvas/Artwork.hpp"
#include "desk/canvas/ImageSurface.hpp"
#include "desk/canvas/PngFile.hpp"

namespace orvane::desk {
namespace {

constexpr double pixelsPerPoint = 2;

SurfacePointer shared(const SurfacePointer& surface) {
  return SurfacePointer(cairo_surface_reference(surface.get()));
}

/// Halves width and height; every pixel is the mean of four.
SurfacePointer halved(cairo_surface_t* source) {
  const int width = std::max(1, cairo_image_surface_get_width(source) / 2);
  const int height = std::max(1, cairo_image_surface_get_height(source) / 2);
  SurfacePointer result = imageSurface(width, height);
  const ContextPointer context(cairo_create(result.get()));
  cairo_scale(context.get(), 0.5, 0.5);
  cairo_set_source_surface(context.get(), source, 0, 0);
  cairo_pattern_set_filter(cairo_get_source(context.get()), CAIRO_FILTER_BILINEAR);
  cairo_pattern_set_extend(cairo_get_source(context.get()), CAIRO_EXTEND_PAD);
  cairo_paint(context.get());
  return result;
}

/// Halved as long as it is at least that large, which keeps a strong reduction smooth.
SurfacePointer reducedTo(const SurfacePointer& image, int width, int height) {
  SurfacePointer made = shared(image);
  while (cairo_image_surface_get_width(made.get()) >= 2 * width &&
         cairo_image_surface_get_height(made.get()) >= 2 * height) {
    made = halved(made.get());
  }
  return made;
}

}  // namespace

ImageLibrary::ImageLibrary() {
  static const auto decoded = [] {
    std::map<std::string, SurfacePointer> images;
    for (const Artwork& artwork : imageArtworks()) {
      images.emplace(artwork.name, decodePng(artwork.bytes));
    }
    return images;
  }();
  for (const auto& [name, image] : decoded) {
    images_.emplace(name, shared(image));
  }
}

std::optional<ui::Size> ImageLibrary::size(const std::string& name) const {
  const auto found = images_.find(name);
  if (found == images_.end()) {
    return std::nullopt;
  }
  return ui::Size{cairo_image_surface_get_width(found->second.get()) / pixelsPerPoint,
                  cairo_image_surface_get_height(found->second.get()) / pixelsPerPoint};
}

void ImageLibrary::paint(cairo_t* context, const std::string& name, const ui::Rect& rect) {
  const auto found = images_.find(name);
  if (found == images_.end() || !(rect.width > 0) || !(rect.height > 0)) {
    return;
  }
  double deviceWidth = rect.width;
  double deviceHeight = rect.height;
  cairo_user_to_device_distance(context, &deviceWidth, &deviceHeight);
  // Rounding must not enlarge a scaled rectangle whose edges are on pixels.
  constexpr double tolerance = 1.0e-6;
  const int width = std::max(1, static_cast<int>(std::ceil(std::abs(deviceWidth) - tolerance)));
  const int height = std::max(1, static_cast<int>(std::ceil(std::abs(deviceHeight) - tolerance)));
  cairo_surface_t* const pixels = reduced_
                                      .get(cacheKey(name, width, height),
                                           [&] { return reducedTo(found->second, width, height); })
                                      .get();
  cairo_save(context);
  cairo_rectangle(context, rect.x, rect.y, rect.width, rect.height);
  cairo_translate(context, rect.x, rect.y);
  cairo_scale(context, rect.width / cairo_image_surface_get_width(pixels),
              rect.height / cairo_image_surface_get_height(pixels));
  cairo_set_source_surface(context, pixels, 0, 0);
  cairo_pattern_set_filter(cairo_get_source(context), CAIRO_FILTER_GOOD);
  cairo_pattern_set_extend(cairo_get_source(context), CAIRO_EXTEND_PAD);
  cairo_fill(context);
  cairo_restore(context);
}

}  // namespace orvane::desk
