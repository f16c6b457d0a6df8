// What a session came to, for machines to read.
#pragma once

#include <cstdint>
#include <string>

#include "desk/window/DeskSession.hpp"
#include "desk/window/WindowLayout.hpp"

namespace orvane::desk {

/// A JSON object on several lines. `drawnFrames` is how often the window was drawn; places in
/// pixels are those of the window's drawing area.
std::string windowDump(const DeskSession& session, const WindowLayout& layout,
                       std::int64_t drawnFrames);

}  // namespace orvane::desk
