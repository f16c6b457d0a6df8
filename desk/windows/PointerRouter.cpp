// A view is updated before it receives an event, so that an animation that the event starts begins
// at the present time.
#include "desk/windows/PointerRouter.hpp"

#include <utility>

#include "desk/windows/WindowServer.hpp"

namespace orvane::desk {

namespace {

bool isOnCloseButton(const WindowServer& server, const DeskWindow& window, CGPoint place) {
  const CGPoint corner = server.topLeftOf(window);
  const auto button = window.closeButton();
  return button && button->contains({place.x - corner.x, place.y - corner.y});
}

}  // namespace

PointerRouter::PointerRouter(WindowServer& server) : server_(server) {
  server_.machine().mouse.setListener(this);
}

PointerRouter::~PointerRouter() {
  server_.machine().mouse.setListener(nullptr);
}

std::optional<PointerRouter::Target> PointerRouter::targetAt(CGPoint place) const {
  if (server_.menus.isOpen()) {
    const MenuRow* const row = server_.menus.rowAt(place);
    if (row == nullptr || row->view == nullptr || server_.menus.isNavigatedByKeys()) {
      return std::nullopt;
    }
    return Target{row->view, {place.x - row->frame.origin.x, place.y - row->frame.origin.y}};
  }
  const auto window = server_.windowAt(place);
  if (window == nullptr || window->content == nullptr || server_.modal.blocks(*window)) {
    return std::nullopt;
  }
  const ui::Point point = window->contentPoint(server_.machine().displays.flipped(place));
  return point.y < 0 ? std::nullopt : std::optional(Target{window->content, point});
}

void PointerRouter::hoverAt(CGPoint place) {
  const std::optional<Target> target = targetAt(place);
  const auto before = hovered_.lock();
  if (before != nullptr && (!target || target->view != before)) {
    hovered_.reset();
    before->update();
    before->host().pointerExited();
  }
  if (target) {
    hovered_ = target->view;
    target->view->update();
    target->view->host().pointerMoved(target->point);
  }
}

void PointerRouter::refresh() {
  if (pressed_.expired() && !windowDrag_ && !fileDrag_ && !server_.machine().displays.isEmpty()) {
    hoverAt(server_.machine().pointer.location());
  }
}

void PointerRouter::pointerMovedTo(CGPoint place) {
  if (fileDrag_) {
    setDropWindow(dropWindowAt(place));
    server_.updates.request();
    return;
  }
  if (windowDrag_) {
    dragWindow(place);
    return;
  }
  if (const auto pressed = pressed_.lock()) {
    if (const auto origin = server_.originOf(*pressed)) {
      pressed->update();
      pressed->host().pointerDragged({place.x - origin->x, place.y - origin->y});
    }
    return;
  }
  if (server_.menus.isOpen()) {
    server_.menus.endKeyNavigation();
    server_.menus.layOut();
    const MenuRow* const row = server_.menus.rowAt(place);
    const bool isPlain = row != nullptr && row->view == nullptr;
    server_.menus.highlight(isPlain ? std::optional(row->itemIndex) : std::nullopt);
  }
  hoverAt(place);
  const std::optional<Target> target = targetAt(place);
  server_.tooltips.pointerIsOver(target ? target->view : nullptr,
                                 target ? target->point : ui::Point{}, place);
}

void PointerRouter::buttonPressedAt(CGPoint place) {
  server_.tooltips.hide();
  if (server_.menus.isOpen()) {
    pressInMenu(place);
    return;
  }
  const auto window = server_.windowAt(place);
  if (window != nullptr) {
    pressInWindow(window, place);
  } else if (const auto display = server_.statusBar.displayOfItemAt(place)) {
    server_.menus.openStatusMenu(*display);
  } else if (!server_.statusBar.isInMenuBar(place)) {
    server_.focus.deactivate();
  }
}

void PointerRouter::pressInMenu(CGPoint place) {
  server_.menus.endKeyNavigation();
  server_.menus.layOut();
  if (server_.menus.rowAt(place) == nullptr) {
    if (!CGRectContainsPoint(server_.menus.frame(), place)) {
      server_.menus.close();
    }
    return;
  }
  if (const std::optional<Target> target = targetAt(place)) {
    press(*target);
  }
}

void PointerRouter::pressInWindow(const std::shared_ptr<DeskWindow>& window, CGPoint place) {
  if (server_.modal.blocks(*window)) {
    return;
  }
  server_.focus.clicked(window);
  const CGPoint windowPlace = server_.machine().displays.flipped(place);
  if (isOnCloseButton(server_, *window, place)) {
    pressedCloseButton_ = window;
  } else if (const std::optional<Target> target = targetAt(place)) {
    press(*target);
    const bool movesWindow = window->isMovableByBackground || window->isInTitleBar(windowPlace);
    if (pressed_.expired() && movesWindow) {
      beginWindowDrag(window, place);
    }
  } else if (window->isMovableByBackground || window->isInTitleBar(windowPlace)) {
    beginWindowDrag(window, place);
  }
}

void PointerRouter::press(const Target& target) {
  target.view->update();
  if (target.view->host().pointerDown(target.point)) {
    pressed_ = target.view;
  }
}

void PointerRouter::buttonReleasedAt(CGPoint place) {
  if (fileDrag_) {
    drop(place);
    return;
  }
  windowDrag_.reset();
  if (const auto window = std::exchange(pressedCloseButton_, {}).lock()) {
    if (server_.isVisible(*window) && isOnCloseButton(server_, *window, place)) {
      server_.performClose(window);
    }
    return;
  }
  if (const auto pressed = std::exchange(pressed_, {}).lock()) {
    const auto origin = server_.originOf(*pressed);
    pressed->update();
    if (origin) {
      pressed->host().pointerUp({place.x - origin->x, place.y - origin->y});
    } else {
      pressed->host().pointerCancelled();
    }
  } else if (server_.menus.isOpen()) {
    server_.menus.layOut();
    const MenuRow* const row = server_.menus.rowAt(place);
    if (row != nullptr && row->view == nullptr) {
      server_.menus.choose(row->itemIndex);
    }
  }
  server_.updates.request();
}

void PointerRouter::wheelTurnedAt(CGPoint place, double horizontal, double vertical) {
  if (const std::optional<Target> target = targetAt(place)) {
    target->view->update();
    target->view->host().scroll(target->point, horizontal, vertical);
  }
}

void PointerRouter::cancelPress() {
  setDropWindow(nullptr);
  windowDrag_.reset();
  fileDrag_.reset();
  pressedCloseButton_.reset();
  if (const auto pressed = std::exchange(pressed_, {}).lock()) {
    pressed->host().pointerCancelled();
  }
}

void PointerRouter::beginWindowDrag(const std::shared_ptr<DeskWindow>& window, CGPoint place) {
  const CGPoint from = server_.machine().displays.flipped(place);
  windowDrag_ =
      WindowDrag{window, {window->frame.origin.x - from.x, window->frame.origin.y - from.y}};
}

void PointerRouter::dragWindow(CGPoint place) {
  const auto window = windowDrag_->window.lock();
  if (window == nullptr || !server_.isVisible(*window)) {
    windowDrag_.reset();
    return;
  }
  const CGPoint to = server_.machine().displays.flipped(place);
  server_.setOrigin(*window, {to.x + windowDrag_->offset.x, to.y + windowDrag_->offset.y});
}

void PointerRouter::beginFileDrag(const ui::DragRequest& request, const HostedView& source) {
  const auto origin = server_.originOf(source);
  if (!origin || !server_.machine().mouse.isButtonPressed()) {
    return;
  }
  const CGPoint place = server_.machine().pointer.location();
  pressed_.reset();
  fileDrag_ = FileDrag{request.fileUrl, request.imageName, FileDrag::copyOperation,
                       request.frame.movedBy({origin->x - place.x, origin->y - place.y})};
  server_.updates.request();
}

std::shared_ptr<DeskWindow> PointerRouter::dropWindowAt(CGPoint place) const {
  const auto window = server_.windowAt(place);
  if (window == nullptr || !window->dropTarget) {
    return nullptr;
  }
  const ui::Point point = window->contentPoint(server_.machine().displays.flipped(place));
  return window->dropTarget->accepts(point) ? window : nullptr;
}

void PointerRouter::setDropWindow(const std::shared_ptr<DeskWindow>& window) {
  const auto before = dropWindow_.lock();
  if (before == window) {
    return;
  }
  dropWindow_ = window;
  for (const auto& [changed, isOver] : {std::pair(before, false), std::pair(window, true)}) {
    if (changed != nullptr && changed->dropTarget && changed->dropTarget->hover) {
      changed->dropTarget->hover(isOver);
    }
  }
}

bool PointerRouter::canDropHere() const {
  return fileDrag_ && (fileDrag_->operations & FileDrag::copyOperation) != 0 &&
         dropWindowAt(server_.machine().pointer.location()) != nullptr;
}

void PointerRouter::drop(CGPoint place) {
  const auto window = canDropHere() ? dropWindowAt(place) : nullptr;
  const FileDrag drag = *std::exchange(fileDrag_, std::nullopt);
  setDropWindow(nullptr);
  server_.updates.request();
  if (window != nullptr) {
    const ui::Point point = window->contentPoint(server_.machine().displays.flipped(place));
    window->dropTarget->drop(point, drag.fileUrl);
  }
}

}  // namespace orvane::desk
