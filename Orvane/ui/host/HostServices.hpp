// What the kit needs from the platform that shows it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "Orvane/ui/layout/Rect.hpp"

namespace orvane::ui {

/// A native pop-up menu with a check mark at the selected item.
struct MenuRequest {
  std::vector<std::string> items;
  /// From 0; -1 when no item is selected.
  int selectedIndex = -1;
  /// The control that opens it, in the host's coordinates.
  Rect anchor;
  /// Called with the index of the chosen item, at once or later; not called without a choice.
  std::function<void(int)> onChoose;
};

/// A drag of one file, which offers only to copy it.
struct DragRequest {
  std::string fileUrl;
  /// The name of the image that follows the pointer, and its first frame in host coordinates.
  std::string imageName;
  Rect frame;
};

/// Each function may be unset; its effect is then left out.
struct HostServices {
  /// Views or pixels are out of date: call tick() soon and repaint takeDirtyRects().
  std::function<void()> requestRedraw;
  /// An animation has begun: call tick() for every frame while nextFrameWanted() is true.
  std::function<void()> requestFrames;
  std::function<void(const MenuRequest&)> openMenu;
  std::function<void(const DragRequest&)> beginDrag;
  /// Closes the window or panel that shows the host.
  std::function<void()> dismiss;
  /// The semantics tree may have changed.
  std::function<void()> semanticsChanged;
};

}  // namespace orvane::ui
