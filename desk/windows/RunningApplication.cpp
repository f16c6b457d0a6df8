// Callbacks are copied before they are called: they may set another delegate.
#include "desk/windows/RunningApplication.hpp"

#include <algorithm>
#include <functional>
#include <utility>

#include "desk/windows/WindowServer.hpp"

namespace orvane::desk {

void RunningApplication::setDelegate(appkit::ApplicationDelegate delegate) {
  delegate_ = std::move(delegate);
}

void RunningApplication::finishLaunching() {
  if (const auto launched = delegate_.didFinishLaunching) {
    launched();
  }
}

bool RunningApplication::reopen() {
  const auto windows = server_.windows();
  const bool hasVisible = std::any_of(windows.begin(), windows.end(), [&](const auto& window) {
    return window->owner == WindowOwner::application && server_.isVisible(*window);
  });
  server_.focus.activate();
  const auto reopened = delegate_.shouldHandleReopen;
  return !reopened || reopened(hasVisible);
}

bool RunningApplication::performKeyEquivalent(const ui::KeyEvent& event) {
  const auto perform = delegate_.performKeyEquivalent;
  return perform && perform(event);
}

void RunningApplication::terminate() {
  if (std::exchange(isTerminating_, true)) {
    return;
  }
  if (const auto terminating = delegate_.willTerminate) {
    terminating();
  }
  server_.machine().runLoop.afterCurrent([&machine = server_.machine()] { machine.process.end(); });
}

void RunningApplication::processEnded() {
  isTerminating_ = false;
  const appkit::ApplicationDelegate gone = std::exchange(delegate_, {});
}

}  // namespace orvane::desk
