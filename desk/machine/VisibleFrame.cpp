// The part of a display that the menu bar and the Dock leave to windows.
#include "desk/machine/VisibleFrame.hpp"

#include "desk/machine/Displays.hpp"

namespace orvane::desk {

CGRect visibleFrameOf(const Display& display, const Dock& dock) {
  CGRect visible = display.frame;
  visible.size.height -= Displays::menuBarHeight;
  if (!dock.isVisible() || dock.displayNumber() != display.number) {
    return visible;
  }
  switch (dock.edge()) {
    case DockEdge::bottom:
      visible.origin.y += Dock::depth;
      visible.size.height -= Dock::depth;
      break;
    case DockEdge::left:
      visible.origin.x += Dock::depth;
      visible.size.width -= Dock::depth;
      break;
    case DockEdge::right:
      visible.size.width -= Dock::depth;
      break;
  }
  return visible;
}

}  // namespace orvane::desk
