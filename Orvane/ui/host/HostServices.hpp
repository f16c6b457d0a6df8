// What the kit asks of the platform that shows it. Each function may be unset; then what it would
// do is left out.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "Orvane/ui/layout/Rect.hpp"

namespace orvane::ui {

// A native pop-up menu with a check mark at the selected item.
struct MenuRequest {
  std::vector<std::string> items;
  // From 0; -1 when no item is selected.
  int selectedIndex = -1;
  // The control that opens it, in the host's coordinates.
  Rect anchor;
  // Called with the index of the chosen item, at once or later; not called when nothing is chosen.
  std::function<void(int)> onChoose;
};

// A drag of one file, offering only to copy it.
struct DragRequest {
  std::string fileUrl;
  // The image that follows the pointer, by name, and where it starts, in the host's coordinates.
  std::string imageName;
  Rect frame;
};

struct HostServices {
  // The next update has something to do: call tick() soon and repaint what dirtyRects() returns.
  std::function<void()> requestRedraw;
  // From now on something moves: call tick() for every frame while nextFrameWanted() is true.
  std::function<void()> requestFrames;
  std::function<void(const MenuRequest&)> openMenu;
  std::function<void(const DragRequest&)> beginDrag;
  // Closes what the host is shown in.
  std::function<void()> dismiss;
  // The semantics tree may have changed.
  std::function<void()> semanticsChanged;
};

}  // namespace orvane::ui
