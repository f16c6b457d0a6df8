// Cuts a line that is too wide: the same characters go in every font of every platform.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "Orvane/ui/draw/LineLimit.hpp"

namespace orvane::ui {

// The line with "…" in place of what does not fit into the width, in points; the ellipsis alone
// where nothing else fits, even if it is too wide itself. `places` are the offsets in bytes between
// whole characters, rising, from 0 to the length of the line; `widthOf` measures a line. In the
// middle both ends get equal room, but the second begins with a whole word where this takes no more
// than two thirds of the room.
std::string truncatedLine(const std::string& line, const std::vector<std::size_t>& places,
                          TruncationMode mode, double maximumWidth,
                          const std::function<double(const std::string&)>& widthOf);

}  // namespace orvane::ui
