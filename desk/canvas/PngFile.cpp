// Cairo reads and writes the PNGs.
#include "desk/canvas/PngFile.hpp"

namespace orvane::desk {
namespace {

cairo_status_t takeBytes(void* closure, unsigned char* data, unsigned int length) {
  auto& rest = *static_cast<std::string_view*>(closure);
  if (rest.size() < length) {
    return CAIRO_STATUS_READ_ERROR;
  }
  rest.copy(reinterpret_cast<char*>(data), length);
  rest.remove_prefix(length);
  return CAIRO_STATUS_SUCCESS;
}

SurfacePointer unlessBroken(cairo_surface_t* made) {
  SurfacePointer surface(made);
  return cairo_surface_status(made) == CAIRO_STATUS_SUCCESS ? std::move(surface) : nullptr;
}

}  // namespace

SurfacePointer decodePng(std::string_view bytes) {
  return unlessBroken(cairo_image_surface_create_from_png_stream(takeBytes, &bytes));
}

bool writePng(cairo_surface_t* surface, const std::filesystem::path& file) {
  return cairo_surface_write_to_png(surface, file.c_str()) == CAIRO_STATUS_SUCCESS;
}

SurfacePointer readPng(const std::filesystem::path& file) {
  return unlessBroken(cairo_image_surface_create_from_png(file.c_str()));
}

}  // namespace orvane::desk
