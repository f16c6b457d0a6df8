// The part of a display that menu bar and Dock leave to windows.
#pragma once

#include "Orvane/platform/Quartz.hpp"
#include "desk/machine/Display.hpp"
#include "desk/machine/Dock.hpp"

namespace orvane::desk {

/// The display's frame without its menu bar and, where the Dock is shown, without the Dock; in
/// window-system coordinates. As on a Mac it goes by where the Dock is going, not by the steps of
/// its slide: a Dock takes its area, or gives it back, at once when it begins to slide.
[[nodiscard]] CGRect visibleFrameOf(const Display& display, const Dock& dock);

}  // namespace orvane::desk
