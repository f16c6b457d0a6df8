// The drawings of desk/symbols, embedded in the library.
#pragma once

#include <span>
#include <string_view>

namespace orvane::desk {

struct SymbolArtwork {
  std::string_view name;
  std::string_view svg;
};

/// All drawings, ordered by name.
std::span<const SymbolArtwork> symbolArtworks();

}  // namespace orvane::desk
