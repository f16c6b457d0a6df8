// The application's images, embedded in the program.
#pragma once

#include <cstdint>
#include <span>

namespace orvane::desk {

struct ImageArtwork {
  const char* name;
  /// A PNG with two pixels per point.
  std::span<const std::uint8_t> png;
};

/// All images of Orvane/resources.
std::span<const ImageArtwork> imageArtworks();

}  // namespace orvane::desk
