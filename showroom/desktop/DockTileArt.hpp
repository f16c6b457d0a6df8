// The tiles in the Dock: applications that exist on this desk only, each drawn by code.
#pragma once

#include <cstddef>

#include "Orvane/ui/layout/Rect.hpp"
#include "desk/canvas/CairoCanvas.hpp"

namespace orvane::showroom {

/// How many tiles there are; the last one is the bin.
std::size_t dockTileCount();

/// Whether the desk shows the application as running, by a dot beside its tile.
bool isDockTileRunning(std::size_t index);

/// Paints one tile into the square; `dayOfMonth` is what the calendar shows. An index beyond the
/// last one paints nothing.
void paintDockTile(desk::CairoCanvas& canvas, std::size_t index, const ui::Rect& square,
                   int dayOfMonth);

}  // namespace orvane::showroom
