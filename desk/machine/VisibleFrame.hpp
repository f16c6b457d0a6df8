// The part of a display that the menu bar and the Dock leave to windows.
#pragma once

#include "Orvane/platform/Quartz.hpp"
#include "desk/machine/Display.hpp"
#include "desk/machine/Dock.hpp"

namespace orvane::desk {

/// The display's frame without its menu bar and, where the Dock is shown, without the Dock; in
/// window-system coordinates. As on a Mac, it changes at once when the Dock begins to slide, not
/// along with the slide.
[[nodiscard]] CGRect visibleFrameOf(const Display& display, const Dock& dock);

}  // namespace orvane::desk
