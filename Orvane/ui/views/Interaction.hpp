// What a view does with the pointer and the keyboard.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "Orvane/ui/draw/Shape.hpp"
#include "Orvane/ui/layout/Rect.hpp"

namespace orvane::ui {

// What a control learns when it is activated.
struct Activation {
  // The control's rectangle as presented, in the host's coordinates.
  Rect frame;
};

// A file to be dragged out of a view.
struct DragItem {
  std::string fileUrl;
  std::string imageName;
};

struct Interaction {
  // Run by a click, by the keyboard and by an accessibility press alike.
  std::function<void(const Activation&)> activate;
  std::function<void(bool isInside)> hover;
  // Asked when a drag begins; nothing begins when it returns nothing.
  std::function<std::optional<DragItem>()> drag;
  std::string tooltip;
  bool isFocusable = false;
  Shape focusShape = Shape::rounded(6);

  // True when a press on the view is taken by it and does not move the window.
  bool takesPress() const { return activate || drag; }
};

}  // namespace orvane::ui
