// Cairo's surfaces in memory.
#include "desk/canvas/ImageSurface.hpp"

#include <cmath>

namespace orvane::desk {

SurfacePointer imageSurface(int width, int height, cairo_format_t format) {
  return SurfacePointer(cairo_image_surface_create(format, width, height));
}

SurfacePointer imageSurface(ui::Size size, double scale) {
  return imageSurface(static_cast<int>(std::ceil(size.width * scale)),
                      static_cast<int>(std::ceil(size.height * scale)));
}

SurfacePointer partOf(cairo_surface_t* picture, int x, int y, int width, int height,
                      cairo_format_t format) {
  SurfacePointer part = imageSurface(width, height, format);
  const ContextPointer context(cairo_create(part.get()));
  cairo_set_source_surface(context.get(), picture, -x, -y);
  cairo_paint(context.get());
  return part;
}

std::string contentOf(cairo_surface_t* picture) {
  cairo_surface_flush(picture);
  std::string content = std::to_string(cairo_image_surface_get_width(picture)) + " ";
  if (const auto* data = reinterpret_cast<const char*>(cairo_image_surface_get_data(picture))) {
    content.append(data, static_cast<std::size_t>(cairo_image_surface_get_stride(picture)) *
                             static_cast<std::size_t>(cairo_image_surface_get_height(picture)));
  }
  return content;
}

}  // namespace orvane::desk
