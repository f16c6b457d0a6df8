// The pointer: hovering, pressing, dragging, scrolling.
#include <algorithm>
#include <cmath>

#include "Orvane/ui/host/ViewHost.hpp"
#include "Orvane/ui/views/ControlSemantics.hpp"
#include "Orvane/ui/views/Node.hpp"
#include "Orvane/ui/views/ScrollView.hpp"

namespace orvane::ui {

namespace {

// How far the pointer travels before a press on a drag source becomes a drag, in points.
constexpr double dragThreshold = 3;

bool isUnder(const Node& node, Point point) {
  return node.toHost.isInvertible() &&
         Rect{0, 0, node.size.width, node.size.height}.contains(node.toHost.inverse().apply(point));
}

// Adds the nodes under the point, topmost first: children in reverse order before their parent.
void collectHits(const Node& node, Point point, double now, std::vector<const Node*>& hits) {
  if (!node.toHost.isInvertible()) {
    return;
  }
  const Effect effect = node.element->effect(node, node.size, now);
  const bool isCut = effect.clip && !effect.clip->rect.contains(node.toHost.inverse().apply(point));
  if (effect.opacity <= 0 || !effect.allowsHitTesting || isCut) {
    return;
  }
  for (auto child = node.children.rbegin(); child != node.children.rend(); ++child) {
    collectHits(**child, point, now, hits);
  }
  if (isUnder(node, point)) {
    hits.push_back(&node);
  }
}

}  // namespace

ViewHost::Hits ViewHost::hitTest(Point point) const {
  Hits hits;
  if (root_) {
    collectHits(*root_, point, now_, hits);
  }
  return hits;
}

Node* ViewHost::topmostPressable(Point point) const {
  for (const Node* node : hitTest(point)) {
    const Interaction* interaction = node->element->interaction();
    if (interaction != nullptr && interaction->takesPress()) {
      return findNode(root_.get(), node->id);
    }
  }
  return nullptr;
}

void ViewHost::pointerMoved(Point point) {
  pointer_ = point;
  updateHover();
}

void ViewHost::pointerExited() {
  pointer_.reset();
  updateHover();
}

bool ViewHost::updateHover() {
  // While a button is held the hover stays as it is.
  if (pressedId_ != 0 || !root_) {
    return true;
  }
  std::vector<std::uint64_t> inside;
  if (pointer_) {
    for (const Node* node : hitTest(*pointer_)) {
      const Interaction* interaction = node->element->interaction();
      if (interaction != nullptr && interaction->hover) {
        inside.push_back(node->id);
      }
    }
  }
  const std::vector<std::uint64_t> before = std::exchange(hovered_, inside);
  const auto tell = [&](std::uint64_t id, bool isInside) {
    const Node* node = findNode(root_.get(), id);
    const Interaction* interaction = node != nullptr ? node->element->interaction() : nullptr;
    if (interaction == nullptr || !interaction->hover) {
      return true;
    }
    return call([handler = interaction->hover, isInside] { handler(isInside); });
  };
  const auto has = [](const std::vector<std::uint64_t>& ids, std::uint64_t id) {
    return std::find(ids.begin(), ids.end(), id) != ids.end();
  };
  for (const std::uint64_t id : before) {
    if (!has(inside, id) && !tell(id, false)) {
      return false;
    }
  }
  for (const std::uint64_t id : inside) {
    if (!has(before, id) && !tell(id, true)) {
      return false;
    }
  }
  return true;
}

void ViewHost::setPressed(Node& node, bool isPressed) {
  if (node.isPressed != isPressed) {
    node.isPressed = isPressed;
    invalidate();
  }
}

bool ViewHost::pointerDown(Point point) {
  pointer_ = point;
  pointerCancelled();
  Node* node = topmostPressable(point);
  if (node == nullptr) {
    return false;
  }
  // A disabled control takes the press too, and does nothing with it.
  pressedId_ = node->id;
  pressPoint_ = point;
  isDragging_ = false;
  if (node->environment->isEnabled) {
    setPressed(*node, true);
  }
  return true;
}

void ViewHost::pointerDragged(Point point) {
  pointer_ = point;
  Node* node = findNode(root_.get(), pressedId_);
  if (node == nullptr) {
    return;
  }
  const bool isEnabled = node->environment->isEnabled;
  const double distance = std::hypot(point.x - pressPoint_.x, point.y - pressPoint_.y);
  if (node->element->interaction()->drag && isEnabled && distance >= dragThreshold) {
    if (!std::exchange(isDragging_, true)) {
      setPressed(*node, false);
      beginDrag(*node);
    }
    return;
  }
  setPressed(*node, isEnabled && isUnder(*node, point));
}

void ViewHost::beginDrag(Node& node) {
  const std::weak_ptr<HostLink> alive = link_;
  const Rect frame = node.hostFrame();
  const auto makeItem = node.element->interaction()->drag;
  const auto begin = services_.beginDrag;
  const std::optional<DragItem> item = makeItem();
  if (item && begin) {
    begin({item->fileUrl, item->imageName, frame});
  }
  // The platform's drag has eaten the release of the button.
  if (!alive.expired() && item) {
    pressedId_ = 0;
  }
}

bool ViewHost::pointerUp(Point point) {
  pointer_ = point;
  Node* node = findNode(root_.get(), pressedId_);
  const bool isClick = node != nullptr && !isDragging_ && isUnder(*node, point);
  const std::uint64_t id = std::exchange(pressedId_, 0);
  if (node != nullptr) {
    setPressed(*node, false);
  }
  const std::weak_ptr<HostLink> alive = link_;
  if (isClick) {
    activate(id);
  }
  if (!alive.expired()) {
    updateHover();
  }
  return id != 0;
}

void ViewHost::pointerCancelled() {
  if (Node* node = findNode(root_.get(), std::exchange(pressedId_, 0))) {
    setPressed(*node, false);
  }
}

bool ViewHost::activate(std::uint64_t id) {
  const Node* node = findNode(root_.get(), id);
  const Interaction* interaction = node != nullptr ? node->element->interaction() : nullptr;
  if (interaction == nullptr || !interaction->activate || !node->environment->isEnabled) {
    return false;
  }
  call([action = interaction->activate, frame = node->hostFrame()] { action({frame}); });
  return true;
}

bool ViewHost::scroll(Point point, double horizontal, double vertical) {
  for (const Node* hit : hitTest(point)) {
    Node* node = findNode(root_.get(), hit->id);
    if (scrollData(*node) != nullptr &&
        scrollBy(*node, horizontal != 0 ? horizontal : vertical, now_)) {
      pointer_ = point;
      present();
      requestRedraw();
      if (updateHover()) {
        call(services_.semanticsChanged);
      }
      return true;
    }
  }
  return false;
}

bool ViewHost::movesWindowAt(Point point) const {
  return topmostPressable(point) == nullptr;
}

std::optional<Tooltip> ViewHost::tooltipAt(Point point) const {
  const Hits hits = hitTest(point);
  for (const Node* node : hits) {
    const Interaction* interaction = node->element->interaction();
    if (interaction != nullptr && !interaction->tooltip.empty()) {
      return Tooltip{interaction->tooltip, node->hostFrame()};
    }
  }
  return expansionTooltip(hits);
}

std::optional<Tooltip> ViewHost::expansionTooltip(const Hits& hits) const {
  const auto takesPress = [](const Node* node) {
    const Interaction* interaction = node->element->interaction();
    return interaction != nullptr && interaction->takesPress();
  };
  const auto control = std::ranges::find_if(hits, takesPress);
  for (const Node* node : control != hits.end() ? Hits{*control} : hits) {
    if (!node->children.empty() && !takesPress(node)) {
      continue;
    }
    for (const SemanticsNode& described : describedBy(*node, now_)) {
      if (!described.cutText.empty()) {
        return Tooltip{described.cutText, node->hostFrame()};
      }
    }
  }
  return std::nullopt;
}

void ViewHost::forgetDeadNodes() {
  const auto isUsable = [&](std::uint64_t id) {
    const Node* node = findNode(root_.get(), id);
    return node != nullptr && node->environment->isEnabled;
  };
  if (pressedId_ != 0 && !isUsable(pressedId_)) {
    if (Node* node = findNode(root_.get(), pressedId_)) {
      node->isPressed = false;
    }
    // The button is still held; its release must not reach what lies there now.
    pressedId_ = 0;
  }
  if (focusedId_ != 0 && !isUsable(focusedId_)) {
    focusedId_ = 0;
  }
  std::erase_if(hovered_, [&](std::uint64_t id) { return findNode(root_.get(), id) == nullptr; });
}

}  // namespace orvane::ui
