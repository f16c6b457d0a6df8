// Pointer events: hovering, pressing, dragging and scrolling.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "Orvane/ui/host/RetainedTree.hpp"
#include "Orvane/ui/layout/Rect.hpp"

namespace orvane::ui {

/// Points are in host coordinates. Handlers may destroy the host, and this object with it; the
/// function that calls them then returns without touching either.
class PointerInput {
 public:
  /// The tree must outlive it.
  explicit PointerInput(const RetainedTree& tree) : tree_(tree) {}

  /// A movement without a pressed button; without a point, the pointer has left the host.
  void move(std::optional<Point> point);
  /// These two return whether a view takes the event. A disabled control takes it without effect.
  bool press(Point point);
  bool release(Point point);
  /// A movement with the button pressed.
  void drag(Point point);
  void cancelPress();
  /// Scrolls the topmost scroll view at the point that can move, by a distance in points. False
  /// when there is none.
  bool scroll(Point point, double distance);

  /// Finds the hovered views for the present tree and calls the handlers of those that changed.
  /// False when a handler has destroyed the host.
  bool updateHover();
  /// After a rebuild: forgets nodes that are gone, and a press on a control that became disabled.
  void forgetDeadNodes();

 private:
  bool callHover(std::uint64_t id, bool isInside) const;
  void setPressed(Node& node, bool isPressed) const;
  void beginDrag(const Node& node);

  const RetainedTree& tree_;
  std::optional<Point> point_;
  std::vector<std::uint64_t> hovered_;
  std::uint64_t pressedId_ = 0;
  Point pressPoint_;
  bool isDragging_ = false;
};

}  // namespace orvane::ui
