// The final state of a session in machine-readable form.
#pragma once

#include <string>
#include <vector>

#include "showroom/window/DeskSession.hpp"
#include "showroom/window/WindowLayout.hpp"

namespace orvane::showroom {

/// When the window was drawn: the maximum of pictures per second, and when each became visible, in
/// milliseconds.
struct WindowFrames {
  int perSecond = 0;
  std::vector<double> shownMilliseconds;
};

/// A JSON object. Pixels are those of the window's drawing area.
std::string windowDump(const DeskSession& session, const WindowLayout& layout,
                       const WindowFrames& frames);

}  // namespace orvane::showroom
