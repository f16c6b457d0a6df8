// WindowList is the order in which windows lie above each other.
#pragma once

#include <memory>
#include <vector>

#include "desk/windows/DeskWindow.hpp"

namespace orvane::desk {

/// A window of a higher level lies above all windows of lower ones. A child lies above its parent,
/// whatever its own level, and the two go to the front together.
class WindowList {
 public:
  using Window = std::shared_ptr<DeskWindow>;
  using Windows = std::vector<Window>;

  /// Brings the window, its parents and its children in front of all others of their level.
  void bringToFront(const Window& window);
  /// In front of all others of their level that have the same owner.
  void bringToFrontOfItsOwner(const Window& window);
  void remove(const Window& window);
  [[nodiscard]] bool contains(const DeskWindow& window) const;

  [[nodiscard]] Windows backToFront() const;
  [[nodiscard]] bool isEmpty() const { return order_.empty(); }

 private:
  /// Takes the windows out of the order that `isTaken` names, keeping their order.
  [[nodiscard]] Windows takeGroup(const DeskWindow& root);

  /// The last brought to the front comes last, whatever its level.
  Windows order_;
};

}  // namespace orvane::desk
