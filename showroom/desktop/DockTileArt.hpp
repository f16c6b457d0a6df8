// The tiles of the Dock, drawn by code.
#pragma once

#include <cstddef>

#include "Orvane/ui/layout/Rect.hpp"
#include "desk/canvas/CairoCanvas.hpp"

namespace orvane::showroom {

/// The number of tiles; the last one is the bin.
std::size_t dockTileCount();

/// Whether the tile has the dot of a running application.
bool isDockTileRunning(std::size_t index);

/// Paints one tile into the square; the calendar shows `dayOfMonth`. An index out of range paints
/// nothing.
void paintDockTile(desk::CairoCanvas& canvas, std::size_t index, const ui::Rect& square,
                   int dayOfMonth);

}  // namespace orvane::showroom
