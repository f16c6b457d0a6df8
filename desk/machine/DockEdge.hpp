// DockEdge is the edge of a display that the simulated Dock really lives on.
#pragma once

#include <cstdint>

namespace orvane::desk {

enum class DockEdge : std::uint8_t { bottom, left, right };

}  // namespace orvane::desk
