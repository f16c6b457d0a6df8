// Focus by id, the ring as presented, and the order of keys.
#include "Orvane/ui/host/KeyboardFocus.hpp"

#include <algorithm>
#include <vector>

#include "Orvane/ui/views/ScrollView.hpp"

namespace orvane::ui {

namespace {

// From the control to the middle of the ring's line, the line's width, and from the middle of the
// line to the edge of its area, in points.
constexpr double ringDistance = 2;
constexpr double ringWidth = 3;
constexpr double ringReach = 4;

bool canTakeFocus(const Node& node) {
  return node.interaction().isFocusable && node.environment->isEnabled;
}

bool isVisible(const Node& node, double now) {
  for (const Node* current = &node; current != nullptr; current = current->parent) {
    if (current->element->effect(*current, now).opacity <= 0) {
      return false;
    }
  }
  return true;
}

}  // namespace

bool KeyboardFocus::set(std::uint64_t id) {
  if (id != 0) {
    const Node* node = tree_.find(id);
    if (node == nullptr || !canTakeFocus(*node)) {
      return false;
    }
  }
  give(id, false);
  return true;
}

bool KeyboardFocus::move(bool isForward) {
  // Depth first is reading order.
  std::vector<std::uint64_t> order;
  if (tree_.root) {
    visitNodes(*tree_.root, [&](const Node& node) {
      if (canTakeFocus(node) && isVisible(node, tree_.now)) {
        order.push_back(node.id);
      }
    });
  }
  if (order.empty()) {
    return false;
  }
  if (!isForward) {
    std::ranges::reverse(order);
  }
  const auto current = std::ranges::find(order, id_);
  const bool isLast = current == order.end() || current + 1 == order.end();
  give(isLast ? order.front() : *(current + 1), true);
  return true;
}

void KeyboardFocus::give(std::uint64_t id, bool showsRing) {
  id_ = id;
  showsRing_ = showsRing;
  if (const Node* node = tree_.find(id)) {
    scrollIntoView(*node, std::nullopt, tree_.now);
  }
}

void KeyboardFocus::forgetDeadNode() {
  const Node* node = tree_.find(id_);
  if (node == nullptr || !node->environment->isEnabled) {
    id_ = 0;
  }
}

std::uint64_t KeyboardFocus::targetOf(const KeyEvent& event) const {
  const bool isPlain = event.modifiers == KeyModifiers{};
  if (event.key == Key::space && isPlain && id_ != 0) {
    return id_;
  }
  if (const std::uint64_t target = shortcutTarget(event)) {
    return target;
  }
  // Return activates the default button or, without one, the control with the focus.
  return event.key == Key::enter && isPlain ? id_ : 0;
}

std::uint64_t KeyboardFocus::shortcutTarget(const KeyEvent& event) const {
  std::uint64_t target = 0;
  if (tree_.root) {
    visitNodes(*tree_.root, [&](const Node& node) {
      const std::optional<KeyboardShortcut>& shortcut = node.environment->shortcut;
      if (target == 0 && node.interaction().activate && node.environment->isEnabled && shortcut &&
          shortcut->matches(event)) {
        target = node.id;
      }
    });
  }
  return target;
}

std::optional<KeyboardFocus::Ring> KeyboardFocus::ring() const {
  const Node* node = showsRing_ ? tree_.find(id_) : nullptr;
  if (node == nullptr || !node->interaction().isFocusable) {
    return std::nullopt;
  }
  const Shape& shape = node->interaction().focusShape;
  Ring ring{shape.in(node->hostFrame()).inset(-ringDistance), std::nullopt};
  for (const Node* area = node->parent; area != nullptr; area = area->parent) {
    if (isScrollView(*area)) {
      const Rect visible = area->hostFrame();
      ring.clip = ring.clip ? ring.clip->intersection(visible) : visible;
    }
  }
  return ring;
}

Rect KeyboardFocus::ringArea() const {
  const std::optional<Ring> shown = ring();
  if (!shown) {
    return {};
  }
  const Rect area = shown->shape.rect.inset(-ringReach);
  return shown->clip ? area.intersection(*shown->clip) : area;
}

void KeyboardFocus::drawRing(Canvas& canvas, const Appearance& appearance,
                             const ColorResolver& colors) const {
  const std::optional<Ring> shown = ring();
  if (!shown) {
    return;
  }
  if (shown->clip) {
    canvas.clip(Shape::rectangle(*shown->clip));
  }
  // Readable on the lightest ground of the dark appearance and the darkest of the light one.
  const Color color = appearance.increaseContrast
                          ? Color::accent().textOn(appearance.dark ? 0.08 : 0.8)
                          : Color::accent().opacity(0.6);
  canvas.stroke(shown->shape, Paint::solid(color.resolve(appearance, colors)), ringWidth);
}

}  // namespace orvane::ui
