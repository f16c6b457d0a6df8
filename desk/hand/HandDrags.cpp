// Dragging a window by its background, and the permission guide's icon onto a list.
#include <algorithm>

#include "desk/hand/Hand.hpp"
#include "desk/hand/InQuotes.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::desk {

namespace {

/// The first point on a display for which `isRight` is true, searched for in steps from the area's
/// top left. Area and result are in global coordinates; the second argument of `isRight` is from
/// the top left.
template <typename Predicate>
std::optional<CGPoint> placeIn(const Displays& displays, const CGRect& area, double step,
                               const Predicate& isRight) {
  for (double y = step; y < area.size.height; y += step) {
    for (double x = step; x < area.size.width; x += step) {
      const CGPoint place{area.origin.x + x, area.origin.y + y};
      if (displays.indexContaining(place) && isRight(place, ui::Point{x, y})) {
        return place;
      }
    }
  }
  return std::nullopt;
}

/// Whether a point of the guide's content is on its icon, the only element that neither moves the
/// window nor is a control.
bool isIcon(const DeskWindow& guide, const std::vector<SurfaceControl>& controls, ui::Point point) {
  return !guide.content->host().movesWindowAt(point) &&
         std::ranges::none_of(controls, [&](const SurfaceControl& control) {
           return control.node.frame.contains(point);
         });
}

}  // namespace

Hand::Refusal Hand::dragWindow(const std::string& surface, double dx, double dy) const {
  const FoundWindow found = findWindow(surface);
  if (found.window == nullptr) {
    return found.refusal;
  }
  const DeskWindow& window = *found.window;
  if (window.content != nullptr) {
    window.content->update();
  }
  constexpr double step = 6;
  const WindowServer& server = WindowServer::current();
  const Displays& displays = machine_.displays;
  const auto place = placeIn(
      displays, {server.topLeftOf(window), window.frame.size}, step, [&](CGPoint point, ui::Point) {
        const bool moves =
            window.isMovableByBackground &&
            (window.content == nullptr ||
             window.content->host().movesWindowAt(window.contentPoint(displays.flipped(point))));
        return moves && server.windowAt(point).get() == &window;
      });
  if (!place) {
    return inQuotes(surface) + " has no background to drag it by";
  }
  machine_.mouse.moveTo(*place);
  pressButton();
  const CGPoint before = window.frame.origin;
  machine_.mouse.moveBy(dx, dy);
  const CGPoint after = window.frame.origin;
  releaseButton();
  const bool isStill = before.x == after.x && before.y == after.y;
  return (dx != 0 || dy != 0) && isStill ? Refusal(inQuotes(surface) + " did not move")
                                         : std::nullopt;
}

Hand::Refusal Hand::dropIcon() const {
  WindowServer& server = WindowServer::current();
  const auto guide = Surfaces(server).window("guide");
  const auto system = Surfaces(server).window("system");
  if (guide == nullptr || system == nullptr || guide->content == nullptr || !system->dropTarget) {
    return "the surfaces \"guide\" and \"system\" must be open";
  }
  constexpr double step = 4;
  const Displays& displays = machine_.displays;
  const std::vector<SurfaceControl> controls = Surfaces(server).controls("guide");
  const auto from = placeIn(
      displays, displays.flipped(guide->contentFrame()), step, [&](CGPoint place, ui::Point point) {
        return isIcon(*guide, controls, point) && server.windowAt(place) == guide;
      });
  const auto to =
      placeIn(displays, displays.flipped(system->contentFrame()), step,
              [&](CGPoint place, ui::Point point) {
                return system->dropTarget->accepts(point) && server.windowAt(place) == system;
              });
  if (!from || !to) {
    return from ? "the list is covered" : "there is no icon to drag";
  }
  moveTo(*from);
  pressButton();
  constexpr double firstDistance = 6;
  machine_.mouse.moveBy(firstDistance, firstDistance);
  machine_.runDue();
  const bool hasStarted = server.pointer.fileDrag().has_value();
  machine_.mouse.moveTo(*to);
  releaseButton();
  return hasStarted ? std::nullopt : Refusal("the icon did not start a drag");
}

}  // namespace orvane::desk
