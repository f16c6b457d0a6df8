// WindowList is the z-order of windows.
#pragma once

#include <memory>
#include <vector>

#include "desk/windows/DeskWindow.hpp"

namespace orvane::desk {

/// A window of a higher level is above all windows of lower levels. A child is above its parent,
/// whatever its own level, and comes to the front with it.
class WindowList {
 public:
  using Window = std::shared_ptr<DeskWindow>;
  using Windows = std::vector<Window>;

  /// Brings the window, its parents and its children in front of all others of their level.
  void bringToFront(const Window& window);
  /// Brings them in front of the others of their level that have the same owner.
  void bringToFrontOfItsOwner(const Window& window);
  void remove(const Window& window);
  [[nodiscard]] bool contains(const DeskWindow& window) const;

  [[nodiscard]] Windows backToFront() const;

 private:
  /// Removes the window and its descendants, and returns them in their order.
  [[nodiscard]] Windows takeGroup(const DeskWindow& root);

  /// Ordered by the time of bringing to the front, whatever the level.
  Windows order_;
};

}  // namespace orvane::desk
