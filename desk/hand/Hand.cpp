// A refusal distinguishes a control that is disabled or blocked by a modal window from one that
// does not exist.
#include "desk/hand/Hand.hpp"

#include <algorithm>
#include <utility>

#include "desk/hand/InQuotes.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::desk {

namespace {

Surfaces surfaces() {
  return Surfaces(WindowServer::current());
}

}  // namespace

Hand::FoundWindow Hand::findWindow(const std::string& surface) const {
  std::shared_ptr<DeskWindow> window = surfaces().window(surface);
  if (window == nullptr) {
    return {nullptr, "there is no surface " + inQuotes(surface)};
  }
  if (WindowServer::current().modal.blocks(*window)) {
    return {nullptr, inQuotes(surface) + " is blocked by a modal window"};
  }
  return {std::move(window), std::nullopt};
}

Hand::FoundControl Hand::find(const ControlName& name) const {
  std::vector<std::string> places = surfaces().names();
  if (name.surface) {
    const bool isOpenMenu = *name.surface == Surfaces::menu && surfaces().isOpen(Surfaces::menu);
    FoundWindow found = isOpenMenu ? FoundWindow{} : findWindow(*name.surface);
    if (found.refusal) {
      return {std::nullopt, std::move(found.refusal)};
    }
    places = {*name.surface};
  }
  bool hasDisabled = false;
  for (const std::string& place : places) {
    std::int64_t left = name.nth;
    for (SurfaceControl& control : surfaces().controls(place)) {
      if (control.node.label != name.label || (name.role && control.node.role != *name.role)) {
        continue;
      }
      if (!control.node.isEnabled) {
        hasDisabled = true;
      } else if (--left == 0) {
        return {std::move(control), std::nullopt};
      }
    }
  }
  const std::string where = name.surface ? " in " + *name.surface : "";
  return {std::nullopt, hasDisabled ? inQuotes(name.label) + where + " is disabled"
                                    : "there is no control " + inQuotes(name.label) + where};
}

std::optional<SurfaceControl> Hand::control(const std::string& label,
                                            const std::string& surface) const {
  std::vector<SurfaceControl> controls = surfaces().controls(surface);
  const auto found = std::ranges::find_if(
      controls, [&](const SurfaceControl& control) { return control.node.label == label; });
  return found != controls.end() ? std::optional(std::move(*found)) : std::nullopt;
}

std::optional<CGPoint> Hand::menuItemCenter(const std::string& title) const {
  MenuTracker& menus = WindowServer::current().menus;
  menus.layOut();
  for (const MenuRow& row : menus.rows()) {
    if (menus.menu()->items[row.itemIndex].title == title) {
      return CGPoint{CGRectGetMidX(row.frame), CGRectGetMidY(row.frame)};
    }
  }
  return std::nullopt;
}

Hand::Refusal Hand::press(const ControlName& name) const {
  const FoundControl found = find(name);
  if (!found.control) {
    return found.refusal;
  }
  const bool isDone = found.control->press();
  machine_.runDue();
  return isDone ? std::nullopt : Refusal(inQuotes(name.label) + " did not react to the press");
}

Hand::Refusal Hand::hover(const ControlName& name) const {
  const FoundControl found = find(name);
  if (!found.control) {
    return found.refusal;
  }
  const CGRect& frame = found.control->visibleFrame;
  if (frame.size.width <= 0 || frame.size.height <= 0) {
    return inQuotes(name.label) + " is scrolled out of sight";
  }
  moveTo({CGRectGetMidX(frame), CGRectGetMidY(frame)});
  return std::nullopt;
}

Hand::Refusal Hand::pick(ControlName name, const std::string& item) const {
  name.role = ui::Role::popUpButton;
  const FoundControl found = find(name);
  if (!found.control) {
    return found.refusal;
  }
  found.control->press();
  machine_.runDue();
  return WindowServer::current().menus.isOpen() ? choose(item)
                                                : Refusal(inQuotes(name.label) + " opened no menu");
}

Hand::Refusal Hand::choose(const std::string& item) const {
  MenuTracker& menus = WindowServer::current().menus;
  const auto& items = menus.menu()->items;
  const auto found = std::ranges::find(items, item, &appkit::MenuItem::title);
  if (found == items.end()) {
    menus.close();
    machine_.runDue();
    return "there is no item " + inQuotes(item);
  }
  const bool isChosen = menus.choose(static_cast<std::size_t>(found - items.begin()));
  machine_.runDue();
  return isChosen ? std::nullopt : Refusal("the item " + inQuotes(item) + " is disabled");
}

Hand::Refusal Hand::openStatusMenu() const {
  WindowServer& server = WindowServer::current();
  if (server.menus.isStatusMenuOpen()) {
    return std::nullopt;
  }
  if (machine_.displays.isEmpty()) {
    return "there is no display with a menu bar";
  }
  if (server.statusBar.item() == nullptr || server.statusBar.item()->menu == nullptr) {
    return "there is no status item with a menu";
  }
  const bool isOpen = server.menus.openStatusMenu(machine_.pointer.displayIndex().value_or(0));
  machine_.runDue();
  return isOpen ? std::nullopt : Refusal("a modal window blocks the menu");
}

Hand::Refusal Hand::close(const std::string& surface) const {
  const FoundWindow found = findWindow(surface);
  if (found.window != nullptr) {
    WindowServer::current().close(found.window);
    machine_.runDue();
  }
  return found.refusal;
}

Hand::Refusal Hand::minimise(const std::string& surface) const {
  const FoundWindow found = findWindow(surface);
  if (found.window == nullptr) {
    return found.refusal;
  }
  WindowServer::current().miniaturize(found.window);
  machine_.runDue();
  return found.window->isMiniaturized ? std::nullopt
                                      : Refusal(inQuotes(surface) + " cannot be minimised");
}

void Hand::moveTo(CGPoint place) const {
  machine_.mouse.moveTo(place);
  machine_.runDue();
}

void Hand::pressButton() const {
  machine_.mouse.pressButton();
  machine_.runDue();
}

void Hand::releaseButton() const {
  machine_.mouse.releaseButton();
  machine_.runDue();
}

void Hand::click(CGPoint place) const {
  // The window server, which is created on first use, receives the click.
  WindowServer::current();
  moveTo(place);
  pressButton();
  releaseButton();
}

bool Hand::key(const ui::KeyEvent& event) const {
  const bool isHandled = WindowServer::current().keyDown(event);
  machine_.runDue();
  return isHandled;
}

}  // namespace orvane::desk
