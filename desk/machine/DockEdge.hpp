// DockEdge is the display edge at which the simulated Dock is.
#pragma once

#include <cstdint>

namespace orvane::desk {

enum class DockEdge : std::uint8_t { bottom, left, right };

/// The edge as the Dock's preferences spell it.
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
