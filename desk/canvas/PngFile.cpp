// Byte buffers for cairo's PNG reader and writer.
#include "desk/canvas/PngFile.hpp"

#include <algorithm>
#include <cstddef>
#include <fstream>
#include <iterator>

namespace orvane::desk {
namespace {

cairo_status_t appendBytes(void* closure, const unsigned char* data, unsigned int length) {
  auto& bytes = *static_cast<std::vector<std::uint8_t>*>(closure);
  bytes.insert(bytes.end(), data, data + length);
  return CAIRO_STATUS_SUCCESS;
}

cairo_status_t takeBytes(void* closure, unsigned char* data, unsigned int length) {
  auto& rest = *static_cast<std::span<const std::uint8_t>*>(closure);
  if (rest.size() < length) {
    return CAIRO_STATUS_READ_ERROR;
  }
  std::copy_n(rest.data(), length, data);
  rest = rest.subspan(length);
  return CAIRO_STATUS_SUCCESS;
}

}  // namespace

std::vector<std::uint8_t> encodePng(cairo_surface_t* surface) {
  std::vector<std::uint8_t> bytes;
  if (cairo_surface_write_to_png_stream(surface, appendBytes, &bytes) != CAIRO_STATUS_SUCCESS) {
    bytes.clear();
  }
  return bytes;
}

SurfacePointer decodePng(std::span<const std::uint8_t> bytes) {
  SurfacePointer surface(cairo_image_surface_create_from_png_stream(takeBytes, &bytes));
  if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) {
    surface.reset();
  }
  return surface;
}

bool writePng(cairo_surface_t* surface, const std::filesystem::path& file) {
  const std::vector<std::uint8_t> bytes = encodePng(surface);
  if (bytes.empty()) {
    return false;
  }
  std::ofstream stream(file, std::ios::binary | std::ios::trunc);
  stream.write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
  return stream.good();
}

SurfacePointer readPng(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  const std::vector<char> characters{std::istreambuf_iterator<char>(stream), {}};
  const std::vector<std::uint8_t> bytes(characters.begin(), characters.end());
  return decodePng(bytes);
}

}  // namespace orvane::desk
