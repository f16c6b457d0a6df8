// The screen edge on which the Dock lives.
#pragma once

namespace orvane {

/// Only `bottom`, `left` and `right` produce trigger zones.
enum class DockPosition { top = 0, bottom = 1, left = 2, right = 3, unknown = 4 };

}  // namespace orvane
