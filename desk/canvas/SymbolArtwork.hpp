// The drawings of desk/symbols as the build puts them into the library.
#pragma once

#include <span>
#include <string_view>

namespace orvane::desk {

struct SymbolArtwork {
  std::string_view name;
  std::string_view svg;
};

/// Every drawing the desk has, in ascending order of name.
std::span<const SymbolArtwork> symbolArtworks();

}  // namespace orvane::desk
