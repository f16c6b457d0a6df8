// Pictures as PNG. The bytes depend only on the pixels.
#pragma once

#include <filesystem>
#include <string_view>

#include "desk/canvas/CairoPointers.hpp"

namespace orvane::desk {

/// The picture in a PNG; null when the bytes are not one.
SurfacePointer decodePng(std::string_view bytes);

/// Writes an image surface to a file; false when it cannot be encoded or written.
bool writePng(cairo_surface_t* surface, const std::filesystem::path& file);

/// Reads a picture from a file; null when there is none or it is not a PNG.
SurfacePointer readPng(const std::filesystem::path& file);

}  // namespace orvane::desk
