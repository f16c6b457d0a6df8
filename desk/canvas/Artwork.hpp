// The artwork that is embedded in the library.
#pragma once

#include <span>
#include <string_view>

namespace orvane::desk {

struct Artwork {
  std::string_view name;
  /// The content of the file.
  std::string_view bytes;
};

/// The drawings of desk/symbols, as SVG, ordered by name.
std::span<const Artwork> symbolArtworks();

/// The application's images, as PNG with two pixels per point.
std::span<const Artwork> imageArtworks();

}  // namespace orvane::desk
