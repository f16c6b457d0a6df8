// The keyboard: focus, its ring, shortcuts, and activation.
#include <algorithm>

#include "Orvane/ui/host/ViewHost.hpp"
#include "Orvane/ui/views/Node.hpp"
#include "Orvane/ui/views/ScrollView.hpp"

namespace orvane::ui {

namespace {

// The ring lies this far outside of the control.
constexpr double ringDistance = 2;

bool canTakeFocus(const Node& node) {
  const Interaction* interaction = node.element->interaction();
  return interaction != nullptr && interaction->isFocusable && node.environment->isEnabled;
}

// Whether the node and everything around it can be seen.
bool isVisible(const Node& node, double now) {
  for (const Node* current = &node; current != nullptr; current = current->parent) {
    if (current->element->effect(*current, current->size, now).opacity <= 0) {
      return false;
    }
  }
  return true;
}

}  // namespace

bool ViewHost::keyDown(const KeyEvent& event) {
  const KeyModifiers none;
  KeyModifiers shift;
  shift.shift = true;
  if (event.key == Key::tab && (event.modifiers == none || event.modifiers == shift)) {
    return moveFocus(event.modifiers == none);
  }
  if (event.key == Key::space && event.modifiers == none && focusedId_ != 0) {
    return activate(focusedId_);
  }
  if (activateShortcut(event)) {
    return true;
  }
  // Return belongs to the default button; where there is none, to the focus.
  if (event.key == Key::enter && event.modifiers == none && focusedId_ != 0) {
    return activate(focusedId_);
  }
  return false;
}

bool ViewHost::activateShortcut(const KeyEvent& event) {
  std::uint64_t target = 0;
  if (root_) {
    visitNodes(*root_, [&](const Node& node) {
      const Interaction* interaction = node.element->interaction();
      const std::optional<KeyboardShortcut>& shortcut = node.environment->shortcut;
      const bool matches = interaction != nullptr && interaction->activate &&
                           node.environment->isEnabled && shortcut && shortcut->matches(event);
      if (target == 0 && matches) {
        target = node.id;
      }
    });
  }
  return target != 0 && activate(target);
}

bool ViewHost::moveFocus(bool isForward) {
  // Parents come before children and siblings in their order, which is the order of reading.
  std::vector<std::uint64_t> order;
  if (root_) {
    visitNodes(*root_, [&](const Node& node) {
      if (canTakeFocus(node) && isVisible(node, now_)) {
        order.push_back(node.id);
      }
    });
  }
  if (order.empty()) {
    return false;
  }
  const auto current = std::find(order.begin(), order.end(), focusedId_);
  std::uint64_t next = isForward ? order.front() : order.back();
  if (current != order.end()) {
    if (isForward) {
      next = current + 1 == order.end() ? order.front() : *(current + 1);
    } else {
      next = current == order.begin() ? order.back() : *(current - 1);
    }
  }
  setFocus(next, true);
  return true;
}

bool ViewHost::focus(std::uint64_t id) {
  if (id != 0) {
    const Node* node = findNode(root_.get(), id);
    if (node == nullptr || !canTakeFocus(*node)) {
      return false;
    }
  }
  setFocus(id, false);
  return true;
}

void ViewHost::setFocus(std::uint64_t id, bool isVisible) {
  focusedId_ = id;
  isFocusVisible_ = isVisible;
  if (!root_) {
    return;
  }
  if (const Node* node = findNode(root_.get(), id)) {
    scrollToVisible(*node, std::nullopt);
  }
  present();
  requestRedraw();
  call(services_.semanticsChanged);
}

void ViewHost::scrollToVisible(const Node& node, const std::optional<Curve>& curve) {
  for (Node* area = node.parent; area != nullptr; area = area->parent) {
    if (scrollData(*area) != nullptr) {
      scrollIntoView(*area, node, curve, now_);
    }
  }
}

std::optional<ViewHost::FocusRing> ViewHost::focusRing() const {
  const Node* node = isFocusVisible_ ? findNode(root_.get(), focusedId_) : nullptr;
  if (node == nullptr) {
    return std::nullopt;
  }
  const Interaction* interaction = node->element->interaction();
  if (interaction == nullptr || !interaction->isFocusable) {
    return std::nullopt;
  }
  FocusRing ring{interaction->focusShape.in(node->hostFrame()).inset(-ringDistance), std::nullopt};
  for (const Node* area = node->parent; area != nullptr; area = area->parent) {
    if (scrollData(*area) != nullptr) {
      const Rect seen = area->hostFrame();
      ring.clip = ring.clip ? ring.clip->intersection(seen) : seen;
    }
  }
  return ring;
}

bool ViewHost::perform(std::uint64_t id, SemanticsAction) {
  return activate(id);
}

}  // namespace orvane::ui
