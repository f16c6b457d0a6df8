// Showing, hiding, moving and closing windows.
#include "desk/windows/WindowServer.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "Orvane/platform/appkit/Screen.hpp"

namespace orvane::desk {

namespace {

using Window = WindowServer::Window;

/// The fraction of the free height that `center` leaves above a window.
constexpr double centredFractionAbove = 1.0 / 3;

double overlapArea(const CGRect& first, const CGRect& second) {
  const double width = std::min(CGRectGetMaxX(first), CGRectGetMaxX(second)) -
                       std::max(first.origin.x, second.origin.x);
  const double height = std::min(CGRectGetMaxY(first), CGRectGetMaxY(second)) -
                        std::max(first.origin.y, second.origin.y);
  return width > 0 && height > 0 ? width * height : 0;
}

}  // namespace

WindowServer::~WindowServer() {
  // Views that are destroyed later must not use this server.
  for (const Window& window : windows()) {
    if (window->content != nullptr) {
      window->content->setOnScreen(false);
    }
  }
}

WindowServer& WindowServer::current() {
  Machine& machine = Machine::current();
  if (machine.windowServer == nullptr) {
    machine.windowServer = std::make_unique<WindowServer>(machine);
  }
  return *of(machine);
}

WindowServer* WindowServer::of(const Machine& machine) {
  return static_cast<WindowServer*>(machine.windowServer.get());
}

bool WindowServer::isVisible(const DeskWindow& window) const {
  if (!list_.contains(window) || window.isMiniaturized || window.isHiddenByDeactivation) {
    return false;
  }
  const Window parent = window.parent.lock();
  return parent == nullptr || !parent->isMiniaturized || !list_.contains(*parent);
}

Window WindowServer::windowAt(CGPoint globalPlace) const {
  const CGPoint place = machine_.displays.flipped(globalPlace);
  // The menu bar covers windows of ordinary levels.
  const bool isInMenuBar = statusBar.isInMenuBar(globalPlace);
  const auto all = windows();
  for (auto window = all.rbegin(); window != all.rend(); ++window) {
    const bool isAboveMenuBar = (*window)->level >= appkit::WindowLevel::status;
    if (isVisible(**window) && (*window)->contains(place) && (isAboveMenuBar || !isInMenuBar)) {
      return *window;
    }
  }
  return nullptr;
}

Window WindowServer::windowShowing(const HostedView& view) const {
  for (const Window& window : windows()) {
    if (window->content.get() == &view) {
      return window;
    }
  }
  return nullptr;
}

std::optional<CGPoint> WindowServer::originOf(const HostedView& view) const {
  for (const MenuRow& row : menus.rows()) {
    if (row.view.get() == &view) {
      return row.frame.origin;
    }
  }
  const Window window = windowShowing(view);
  if (window == nullptr || !isVisible(*window)) {
    return std::nullopt;
  }
  return machine_.displays.flipped(window->contentFrame()).origin;
}

CGPoint WindowServer::topLeftOf(const DeskWindow& window) const {
  return machine_.displays.flipped(window.frame).origin;
}

std::optional<std::size_t> WindowServer::displayIndexOf(const DeskWindow& window) const {
  std::optional<std::size_t> best;
  double largest = 0;
  const auto& displays = machine_.displays.all();
  for (std::size_t index = 0; index < displays.size(); ++index) {
    const double area = overlapArea(displays[index].frame, window.frame);
    if (area > largest) {
      largest = area;
      best = index;
    }
  }
  return best;
}

void WindowServer::noteChange() {
  for (const Window& window : windows()) {
    if (window->content != nullptr) {
      window->content->setOnScreen(isVisible(*window));
    }
  }
  updates.request();
}

void WindowServer::orderFront(const Window& window, bool regardless) {
  if (regardless || focus.isActive() || window->owner == WindowOwner::system) {
    list_.bringToFront(window);
  } else {
    list_.bringToFrontOfItsOwner(window);
  }
  noteChange();
}

void WindowServer::orderOut(const Window& window) {
  const Window kept = window;
  const auto children = kept->children;
  for (const Window& child : children) {
    orderOut(child);
  }
  if (const Window parent = kept->parent.lock()) {
    removeChild(parent, kept);
  }
  list_.remove(kept);
  kept->isMiniaturized = false;
  kept->isHiddenByDeactivation = false;
  if (kept->content != nullptr) {
    kept->content->setOnScreen(false);
  }
  focus.revalidate();
  noteChange();
}

void WindowServer::close(const Window& window) {
  const Window kept = window;
  if (const auto willClose = std::exchange(kept->willClose, nullptr)) {
    willClose();
  }
  orderOut(kept);
}

void WindowServer::performClose(const Window& window) {
  if (window->hasStyle(appkit::StyleMask::closable)) {
    close(window);
  }
}

void WindowServer::miniaturize(const Window& window) {
  if (!window->hasStyle(appkit::StyleMask::miniaturizable) || !isVisible(*window)) {
    return;
  }
  window->isMiniaturized = true;
  noteChange();
  focus.revalidate();
}

void WindowServer::deminiaturize(const Window& window) {
  if (!window->isMiniaturized) {
    return;
  }
  window->isMiniaturized = false;
  orderFront(window, false);
  focus.makeKey(window);
}

void WindowServer::setOrigin(DeskWindow& window, CGPoint origin) {
  if (!std::isfinite(origin.x) || !std::isfinite(origin.y)) {
    return;
  }
  const CGPoint from = window.frame.origin;
  window.frame.origin = origin;
  for (const Window& child : window.children) {
    const CGPoint place = child->frame.origin;
    setOrigin(*child, {place.x + origin.x - from.x, place.y + origin.y - from.y});
  }
  updates.request();
}

void WindowServer::center(DeskWindow& window) {
  const auto index = displayIndexOf(window);
  const auto screens = appkit::Screen::screens();
  const auto screen = index ? std::optional(screens[*index]) : appkit::Screen::mainScreen();
  if (!screen) {
    return;
  }
  const CGRect area = screen->visibleFrame();
  const CGSize size = window.frame.size;
  setOrigin(window, {std::floor(CGRectGetMidX(area) - size.width / 2),
                     std::floor(area.origin.y +
                                (area.size.height - size.height) * (1 - centredFractionAbove))});
}

void WindowServer::addChild(const Window& parent, const Window& child) {
  if (parent == child || child->parent.lock() == parent) {
    return;
  }
  if (const Window former = child->parent.lock()) {
    removeChild(former, child);
  }
  parent->children.push_back(child);
  child->parent = parent;
  if (list_.contains(*parent)) {
    orderFront(child, true);
  }
}

void WindowServer::removeChild(const Window& parent, const Window& child) {
  const Window kept = child;
  if (std::erase(parent->children, kept) > 0) {
    kept->parent.reset();
    noteChange();
  }
}

void WindowServer::setContent(const Window& window, std::shared_ptr<HostedView> view) {
  const auto before = std::exchange(window->content, std::move(view));
  if (before != nullptr && before != window->content) {
    before->setOnScreen(false);
  }
  if (window->content != nullptr) {
    const CGSize size = window->contentFrame().size;
    window->content->setFrame(CGRectMake(0, 0, size.width, size.height));
  }
  noteChange();
}

bool WindowServer::keyDown(const ui::KeyEvent& event) {
  tooltips.hide();
  if (menus.isOpen()) {
    menus.keyDown(event);
    return true;
  }
  const Window window = focus.keyReceiver();
  if (window == nullptr || modal.blocks(*window)) {
    return false;
  }
  if (const auto view = window->content) {
    view->update();
    if (view->host().keyDown(event)) {
      return true;
    }
  }
  if (window->owner == WindowOwner::application && application.performKeyEquivalent(event)) {
    return true;
  }
  const ui::KeyModifiers command{false, false, false, true};
  if (event.key != ui::Key::character || event.modifiers != command) {
    return false;
  }
  if (event.characters == "w" && window->hasStyle(appkit::StyleMask::closable)) {
    performClose(window);
    return true;
  }
  if (event.characters == "m" && window->hasStyle(appkit::StyleMask::miniaturizable)) {
    miniaturize(window);
    return true;
  }
  return false;
}

void WindowServer::displaysChanged() {
  menus.close();
  // Windows of a detached display move to the main one.
  const Display* const main = machine_.displays.main();
  for (const Window& window : windows()) {
    if (main != nullptr && !displayIndexOf(*window) && window->parent.expired()) {
      const CGRect area = main->frame;
      const CGSize size = window->frame.size;
      setOrigin(*window, {std::floor(CGRectGetMidX(area) - size.width / 2),
                          std::floor(CGRectGetMidY(area) - size.height / 2)});
    }
  }
  updates.request();
}

void WindowServer::processEnded() {
  pointer.cancelPress();
  tooltips.hide();
  application.processEnded();
  modal.processEnded();
  menus.processEnded();
  statusBar.processEnded();
  focus.processEnded();
  // The callbacks of the process's windows are not called any more.
  for (const Window& window : windows()) {
    if (window->owner == WindowOwner::application) {
      window->willClose = nullptr;
      if (window->content != nullptr) {
        window->content->setOnScreen(false);
      }
      list_.remove(window);
    }
  }
  announcements.clear();
  updates.processEnded();
}

std::optional<std::size_t> WindowServer::keyDisplayIndex() const {
  const Window key = focus.keyWindow();
  return key != nullptr ? displayIndexOf(*key) : std::nullopt;
}

}  // namespace orvane::desk
