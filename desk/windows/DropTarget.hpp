// DropTarget takes files that are dragged onto a window.
#pragma once

#include <functional>
#include <string>

#include "Orvane/ui/layout/Point.hpp"

namespace orvane::desk {

/// Points are from the top left of the window's content. Only copies are ever offered.
struct DropTarget {
  /// Whether a file may be dropped there.
  std::function<bool(ui::Point place)> accepts;
  std::function<void(ui::Point place, const std::string& fileUrl)> drop;
  /// Told when a dragged file comes to where it may be dropped (true), and when it leaves. May be
  /// unset.
  std::function<void(bool isOver)> hover = {};
};

}  // namespace orvane::desk
