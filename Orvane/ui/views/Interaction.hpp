// The handlers of a view, and how it takes part in input.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "Orvane/ui/draw/Shape.hpp"
#include "Orvane/ui/host/HostServices.hpp"

namespace orvane::ui {

/// Unset functions have no effect.
struct Interaction {
  /// Called by a click, by the keyboard and by an accessibility press, with the control's rectangle
  /// as presented, in host coordinates.
  std::function<void(const Rect& frame)> activate = nullptr;
  std::function<void(bool isInside)> hover = nullptr;
  /// Called when a drag begins; without a request there is no drag. The host sets the frame.
  std::function<std::optional<DragRequest>()> drag = nullptr;
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
