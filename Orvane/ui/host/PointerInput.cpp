// Nodes are kept by id, since every handler may change the tree.
#include "Orvane/ui/host/PointerInput.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "Orvane/ui/views/ScrollView.hpp"

namespace orvane::ui {

namespace {

// A press on a drag source becomes a drag after this distance, in points.
constexpr double dragThreshold = 3;

bool contains(const std::vector<std::uint64_t>& ids, std::uint64_t id) {
  return std::ranges::find(ids, id) != ids.end();
}

}  // namespace

void PointerInput::move(std::optional<Point> point) {
  point_ = point;
  updateHover();
}

bool PointerInput::updateHover() {
  // While the button is pressed, the hovered views stay the same.
  if (pressedId_ != 0 || !tree_.root) {
    return true;
  }
  std::vector<std::uint64_t> inside;
  if (point_) {
    for (const Node* node : tree_.hitTest(*point_)) {
      if (node->interaction().hover) {
        inside.push_back(node->id);
      }
    }
  }
  const std::vector<std::uint64_t> before = std::exchange(hovered_, inside);
  for (const std::uint64_t id : before) {
    if (!contains(inside, id) && !callHover(id, false)) {
      return false;
    }
  }
  for (const std::uint64_t id : inside) {
    if (!contains(before, id) && !callHover(id, true)) {
      return false;
    }
  }
  return true;
}

bool PointerInput::callHover(std::uint64_t id, bool isInside) const {
  const Node* node = tree_.find(id);
  if (node == nullptr || !node->interaction().hover) {
    return true;
  }
  return tree_.call([handler = node->interaction().hover, isInside] { handler(isInside); });
}

void PointerInput::setPressed(Node& node, bool isPressed) const {
  if (node.isPressed != isPressed) {
    node.isPressed = isPressed;
    tree_.link->invalidate();
  }
}

bool PointerInput::press(Point point) {
  point_ = point;
  cancelPress();
  Node* node = tree_.pressTarget(point);
  if (node == nullptr) {
    return false;
  }
  pressedId_ = node->id;
  pressPoint_ = point;
  isDragging_ = false;
  if (node->environment->isEnabled) {
    setPressed(*node, true);
  }
  return true;
}

void PointerInput::drag(Point point) {
  point_ = point;
  Node* node = tree_.find(pressedId_);
  if (node == nullptr) {
    return;
  }
  const bool isEnabled = node->environment->isEnabled;
  const double distance = std::hypot(point.x - pressPoint_.x, point.y - pressPoint_.y);
  if (node->interaction().drag && isEnabled && distance >= dragThreshold) {
    if (!std::exchange(isDragging_, true)) {
      setPressed(*node, false);
      beginDrag(*node);
    }
    return;
  }
  setPressed(*node, isEnabled && node->covers(point));
}

void PointerInput::beginDrag(const Node& node) {
  const std::shared_ptr<HostLink> host = tree_.link;
  const Rect frame = node.hostFrame();
  const auto makeRequest = node.interaction().drag;
  if (std::optional<DragRequest> request = makeRequest()) {
    request->frame = frame;
    host->call(&HostServices::beginDrag, *request);
    // The platform's drag consumes the release of the button.
    if (host->isConnected()) {
      pressedId_ = 0;
    }
  }
}

bool PointerInput::release(Point point) {
  point_ = point;
  Node* node = tree_.find(pressedId_);
  const bool isClick = node != nullptr && !isDragging_ && node->covers(point);
  const std::uint64_t id = std::exchange(pressedId_, 0);
  if (node != nullptr) {
    setPressed(*node, false);
  }
  const std::shared_ptr<HostLink> host = tree_.link;
  if (isClick) {
    tree_.activate(id);
  }
  if (host->isConnected()) {
    updateHover();
  }
  return id != 0;
}

void PointerInput::cancelPress() {
  if (Node* node = tree_.find(std::exchange(pressedId_, 0))) {
    setPressed(*node, false);
  }
}

bool PointerInput::scroll(Point point, double distance) {
  for (Node* node : tree_.hitTest(point)) {
    if (scrollBy(*node, distance, tree_.now)) {
      point_ = point;
      return true;
    }
  }
  return false;
}

void PointerInput::forgetDeadNodes() {
  Node* pressed = tree_.find(pressedId_);
  if (pressed == nullptr) {
    pressedId_ = 0;
  } else if (!pressed->environment->isEnabled) {
    pressed->isPressed = false;
    pressedId_ = 0;
  }
  std::erase_if(hovered_, [&](std::uint64_t id) { return tree_.find(id) == nullptr; });
}

}  // namespace orvane::ui
