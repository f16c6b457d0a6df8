// The handlers of a view, and how it takes part in input.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "Orvane/ui/draw/Shape.hpp"
#include "Orvane/ui/layout/Rect.hpp"

namespace orvane::ui {

/// A file that can be dragged out of a view.
struct DragItem {
  std::string fileUrl;
  std::string imageName;
};

/// Unset functions have no effect.
struct Interaction {
  /// Called by a click, by the keyboard and by an accessibility press, with the control's rectangle
  /// as presented, in host coordinates.
  std::function<void(const Rect& frame)> activate = nullptr;
  std::function<void(bool isInside)> hover = nullptr;
  /// Called when a drag begins; without an item there is no drag.
  std::function<std::optional<DragItem>()> drag = nullptr;
  /// Called after the layout in which the view appeared.
  std::function<void()> appear = nullptr;
  std::string tooltip = {};
  /// Whether Tab reaches the view, and the outline of its focus ring.
  bool isFocusable = false;
  Shape focusShape = Shape::rounded(6);

  /// Whether a press on the view goes to it and does not move the window.
  [[nodiscard]] bool takesPress() const { return activate || drag; }
};

}  // namespace orvane::ui
