// The choice of the next key window, and the windows that activation shows and hides.
#include "desk/windows/WindowFocus.hpp"

#include <utility>

#include "desk/windows/WindowServer.hpp"

namespace orvane::desk {

void WindowFocus::activate() {
  if (std::exchange(isActive_, true)) {
    return;
  }
  for (const Window& window : server_.windows()) {
    window->isHiddenByDeactivation = false;
  }
  server_.noteChange();
  revalidate();
}

void WindowFocus::deactivate() {
  if (!std::exchange(isActive_, false)) {
    return;
  }
  hideForDeactivation();
  server_.noteChange();
}

void WindowFocus::hide() {
  isActive_ = false;
  for (const Window& window : server_.windows()) {
    window->isHiddenByDeactivation = window->owner == WindowOwner::application;
  }
  server_.noteChange();
}

void WindowFocus::hideForDeactivation() {
  for (const Window& window : server_.windows()) {
    // A modal window stays, because the user needs it to end the session.
    window->isHiddenByDeactivation = window->owner == WindowOwner::application &&
                                     window->hidesOnDeactivate && !server_.modal.isModal(*window);
  }
}

bool WindowFocus::mayBeKey(const Window& window) const {
  return window->canBecomeKey() && server_.isVisible(*window) && !server_.modal.blocks(*window);
}

void WindowFocus::makeKey(const Window& window) {
  if (!mayBeKey(window)) {
    return;
  }
  if (window->owner == WindowOwner::system) {
    systemKey_ = window;
    return;
  }
  key_ = window;
  if (window->canBecomeMain()) {
    main_ = window;
  }
  server_.noteChange();
}

void WindowFocus::clicked(const Window& window) {
  if (window->owner == WindowOwner::system) {
    deactivate();
  } else if (!window->isNonactivating()) {
    activate();
  }
  server_.orderFront(window, true);
  if (!window->becomesKeyOnlyIfNeeded) {
    makeKey(window);
  }
}

WindowFocus::Window WindowFocus::keyWindow() const {
  const Window key = key_.lock();
  const bool isThere = key != nullptr && server_.isVisible(*key);
  return isThere && (isActive_ || key->isNonactivating()) ? key : nullptr;
}

WindowFocus::Window WindowFocus::mainWindow() const {
  const Window main = main_.lock();
  return main != nullptr && server_.isVisible(*main) && isActive_ ? main : nullptr;
}

WindowFocus::Window WindowFocus::keyReceiver() const {
  if (Window key = keyWindow()) {
    return key;
  }
  const Window system = systemKey_.lock();
  return system != nullptr && !isActive_ && server_.isVisible(*system) ? system : nullptr;
}

void WindowFocus::revalidate() {
  const Window main = main_.lock();
  if (main != nullptr && !server_.isVisible(*main)) {
    main_.reset();
  }
  const Window key = key_.lock();
  if (key != nullptr && mayBeKey(key)) {
    return;
  }
  key_.reset();
  const auto windows = server_.windows();
  for (auto window = windows.rbegin(); window != windows.rend(); ++window) {
    if ((*window)->owner == WindowOwner::application && mayBeKey(*window)) {
      makeKey(*window);
      return;
    }
  }
}

void WindowFocus::processEnded() {
  isActive_ = false;
  key_.reset();
  main_.reset();
}

}  // namespace orvane::desk
