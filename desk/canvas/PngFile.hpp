// Pictures as PNG. The bytes depend only on the pixels.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <vector>

#include <cairo.h>

#include "desk/canvas/CairoPointers.hpp"

namespace orvane::desk {

/// The PNG of an image surface; empty when the surface is in an error state or no image.
std::vector<std::uint8_t> encodePng(cairo_surface_t* surface);

/// The picture in a PNG; null when the bytes are not one.
SurfacePointer decodePng(std::span<const std::uint8_t> bytes);

/// Writes the surface to a file; false when it cannot be encoded or written.
bool writePng(cairo_surface_t* surface, const std::filesystem::path& file);

/// Reads a picture from a file; null when there is none or it is not a PNG.
SurfacePointer readPng(const std::filesystem::path& file);

}  // namespace orvane::desk
