// What a session came to, for machines to read.
#pragma once

#include <string>
#include <vector>

#include "showroom/window/DeskSession.hpp"
#include "showroom/window/WindowLayout.hpp"

namespace orvane::showroom {

/// When the window was drawn: pictures a second at the most, and the milliseconds at which each one
/// could be seen.
struct WindowFrames {
  int perSecond = 0;
  std::vector<double> shownMilliseconds;
};

/// A JSON object on several lines. Places in pixels are those of the window's drawing area.
std::string windowDump(const DeskSession& session, const WindowLayout& layout,
                       const WindowFrames& frames);

}  // namespace orvane::showroom
