// The shelf is laid out along a line and then rotated to its edge.
#include "showroom/desktop/DockShelf.hpp"

#include <algorithm>

namespace orvane::showroom {

namespace {

// In points, for a Dock of full size.
constexpr double tileSize = 46;
constexpr double tileSpacing = 5;
constexpr double shelfPadding = 7;
constexpr double separatorRoom = 11;
constexpr double edgeDistance = 5;
constexpr double shelfCorner = 17;
constexpr double dotSize = 3.2;
/// From the tile to the middle of the dot.
constexpr double dotDistance = 3.6;

/// A rectangle in coordinates along and away from the edge.
struct Strip {
  double along;
  double away;
  double length;
  double depth;
};

ui::Rect rotated(const Strip& strip, const ui::Rect& area, desk::DockEdge edge) {
  switch (edge) {
    case desk::DockEdge::bottom:
      return {area.x + strip.along, area.bottom() - strip.away - strip.depth, strip.length,
              strip.depth};
    case desk::DockEdge::left:
      return {area.x + strip.away, area.y + strip.along, strip.depth, strip.length};
    case desk::DockEdge::right:
      return {area.right() - strip.away - strip.depth, area.y + strip.along, strip.depth,
              strip.length};
  }
  return {};
}

}  // namespace

DockShelf DockShelf::make(const ui::Rect& area, desk::DockEdge edge, double shownFraction,
                          std::size_t tileCount) {
  DockShelf result;
  if (area.isEmpty() || tileCount == 0) {
    return result;
  }
  const double room = edge == desk::DockEdge::bottom ? area.width : area.height;
  const double depth = edge == desk::DockEdge::bottom ? area.height : area.width;
  const auto count = static_cast<double>(tileCount);
  const double needed =
      2 * shelfPadding + count * tileSize + (count - 1) * tileSpacing + separatorRoom;
  result.factor = std::min(1.0, room / needed);
  const double factor = result.factor;
  result.cornerRadius = shelfCorner * factor;

  // Smoothstep eases the slide at both ends.
  const double shown = std::clamp(shownFraction, 0.0, 1.0);
  const double hidden = 1 - shown * shown * (3 - 2 * shown);
  const double away = edgeDistance - hidden * depth;
  const double shelfDepth = (tileSize + 2 * shelfPadding) * factor;
  const double start = (room - needed * factor) / 2;
  result.shelf = rotated({start, away, needed * factor, shelfDepth}, area, edge);

  double along = start + shelfPadding * factor;
  for (std::size_t index = 0; index < tileCount; ++index) {
    if (index + 1 == tileCount) {
      // One point, or less if the tiles are too close.
      const double thickness = std::min(1.0, 4 * factor);
      const double middle = along + (separatorRoom - tileSpacing) / 2 * factor;
      result.separator =
          rotated({middle - thickness / 2, away + 11 * factor, thickness, shelfDepth - 22 * factor},
                  area, edge);
      along += separatorRoom * factor;
    }
    result.tiles.push_back(rotated(
        {along, away + shelfPadding * factor, tileSize * factor, tileSize * factor}, area, edge));
    result.dots.push_back(rotated({along + (tileSize - dotSize) / 2 * factor,
                                   away + (shelfPadding - dotDistance - dotSize / 2) * factor,
                                   dotSize * factor, dotSize * factor},
                                  area, edge));
    along += (tileSize + tileSpacing) * factor;
  }
  return result;
}

}  // namespace orvane::showroom
