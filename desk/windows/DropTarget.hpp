// DropTarget accepts files that are dropped on a window.
#pragma once

#include <functional>
#include <string>

#include "Orvane/ui/layout/Rect.hpp"

namespace orvane::desk {

/// Points are from the top left of the window's content. The only drag operation is copying.
struct DropTarget {
  /// Whether a file may be dropped there.
  std::function<bool(ui::Point place)> accepts;
  std::function<void(ui::Point place, const std::string& fileUrl)> drop;
  /// Called when a dragged file enters the area in which it may be dropped (true), and when it
  /// leaves it. May be unset.
  std::function<void(bool isOver)> hover = {};
};

}  // namespace orvane::desk
