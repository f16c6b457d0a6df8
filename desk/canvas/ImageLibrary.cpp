// Decodes pictures once, and caches them at the sizes at which they are shown.
#include "desk/canvas/ImageLibrary.hpp"

#include <algorithm>
#include <cmath>

#include <librsvg/rsvg.h>

#include "desk/canvas/ImageSurface.hpp"
#include "desk/canvas/PngFile.hpp"

namespace orvane::desk {
namespace {

constexpr std::uint8_t pngSignature[] = {0x89, 'P', 'N', 'G'};
// An animated scale produces many sizes, of which only some are cached.
constexpr std::size_t mostPrepared = 64;

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

}  // namespace

bool ImageLibrary::add(const std::string& name, std::span<const std::uint8_t> bytes,
                       std::optional<ui::Size> size) {
  Picture picture;
  ui::Size own;
  if (bytes.size() > sizeof pngSignature &&
      std::equal(std::begin(pngSignature), std::end(pngSignature), bytes.begin())) {
    picture.pixels = decodePng(bytes);
    if (!picture.pixels) {
      return false;
    }
    own.width = cairo_image_surface_get_width(picture.pixels.get());
    own.height = cairo_image_surface_get_height(picture.pixels.get());
  } else {
    picture.drawing.reset(rsvg_handle_new_from_data(bytes.data(), bytes.size(), nullptr));
    if (!picture.drawing) {
      return false;
    }
    const bool hasSize = rsvg_handle_get_intrinsic_size_in_pixels(picture.drawing.get(), &own.width,
                                                                  &own.height) != FALSE;
    if (!hasSize && !size) {
      return false;
    }
  }
  picture.size = size.value_or(own);
  return keep(name, std::move(picture));
}

bool ImageLibrary::addPixels(const std::string& name, SurfacePointer pixels, ui::Size size) {
  return pixels != nullptr && keep(name, Picture{size, std::move(pixels), nullptr});
}

bool ImageLibrary::keep(const std::string& name, Picture picture) {
  if (!(picture.size.width > 0) || !(picture.size.height > 0)) {
    return false;
  }
  remove(name);
  pictures_.emplace(name, std::move(picture));
  return true;
}

void ImageLibrary::remove(const std::string& name) {
  pictures_.erase(name);
  std::erase_if(prepared_, [&](const auto& entry) { return entry.first.first == name; });
}

std::optional<ui::Size> ImageLibrary::size(const std::string& name) const {
  const auto found = pictures_.find(name);
  return found == pictures_.end() ? std::nullopt : std::optional(found->second.size);
}

cairo_surface_t* ImageLibrary::pixelsFor(const std::string& name, Picture& picture,
                                         PixelSize wanted) {
  const auto key = std::pair(name, wanted);
  const auto found = prepared_.find(key);
  if (found != prepared_.end()) {
    return found->second.get();
  }
  SurfacePointer made;
  if (picture.drawing) {
    made = imageSurface(wanted.first, wanted.second);
    const ContextPointer context(cairo_create(made.get()));
    // A drawing is stretched like any image.
    cairo_scale(context.get(), wanted.first / picture.size.width,
                wanted.second / picture.size.height);
    const RsvgRectangle viewport{0, 0, picture.size.width, picture.size.height};
    rsvg_handle_render_document(picture.drawing.get(), context.get(), &viewport, nullptr);
  } else {
    made.reset(cairo_surface_reference(picture.pixels.get()));
    while (cairo_image_surface_get_width(made.get()) >= 2 * wanted.first &&
           cairo_image_surface_get_height(made.get()) >= 2 * wanted.second) {
      made = halved(made.get());
    }
  }
  if (prepared_.size() >= mostPrepared) {
    prepared_.clear();
  }
  return prepared_.emplace(key, std::move(made)).first->second.get();
}

bool ImageLibrary::paint(cairo_t* context, const std::string& name, double x, double y,
                         double width, double height) {
  const auto found = pictures_.find(name);
  if (found == pictures_.end() || !(width > 0) || !(height > 0)) {
    return false;
  }
  double deviceWidth = width;
  double deviceHeight = height;
  cairo_user_to_device_distance(context, &deviceWidth, &deviceHeight);
  // Rounding must not enlarge a scaled rectangle whose edges are on pixels.
  constexpr double tolerance = 1.0e-6;
  const PixelSize wanted{
      std::max(1, static_cast<int>(std::ceil(std::abs(deviceWidth) - tolerance))),
      std::max(1, static_cast<int>(std::ceil(std::abs(deviceHeight) - tolerance)))};
  cairo_surface_t* pixels = pixelsFor(name, found->second, wanted);
  cairo_save(context);
  cairo_rectangle(context, x, y, width, height);
  cairo_translate(context, x, y);
  cairo_scale(context, width / cairo_image_surface_get_width(pixels),
              height / cairo_image_surface_get_height(pixels));
  cairo_set_source_surface(context, pixels, 0, 0);
  cairo_pattern_set_filter(cairo_get_source(context), CAIRO_FILTER_GOOD);
  cairo_pattern_set_extend(cairo_get_source(context), CAIRO_EXTEND_PAD);
  cairo_fill(context);
  cairo_restore(context);
  return true;
}

}  // namespace orvane::desk
