// DockEdge is the edge of a display that the simulated Dock really lives on.
#pragma once

#include <cstdint>

namespace orvane::desk {

enum class DockEdge : std::uint8_t { bottom, left, right };

/// As the Dock's preferences write it.
[[nodiscard]] constexpr const char* nameOf(DockEdge edge) {
  switch (edge) {
    case DockEdge::left:
      return "left";
    case DockEdge::right:
      return "right";
    case DockEdge::bottom:
      break;
  }
  return "bottom";
}

}  // namespace orvane::desk
