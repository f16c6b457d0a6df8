// The NSWindow or NSPanel behind a Window, and its state that the window system does not store.
#include "macos/appkit/NativeWindow.hpp"

#include <utility>

namespace orvane::appkit {
namespace {

NSMutableSet<NSWindow*>* shownWindows() {
  static NSMutableSet<NSWindow*>* const shown = [[NSMutableSet alloc] init];
  return shown;
}

void windowIsClosing(NSWindow<OrvaneNativeWindow>* window) {
  // Closing continues after this, when nothing else may retain the window.
  dispatch_async(dispatch_get_main_queue(), ^{
    (void)window;
  });
  [shownWindows() removeObject:window];
  if (const auto willClose = std::exchange(window.state.willClose, nullptr)) {
    willClose();
  }
}

}  // namespace

std::optional<Window> windowFrom(NSWindow* window) {
  if (![window conformsToProtocol:@protocol(OrvaneNativeWindow)]) {
    return std::nullopt;
  }
  // All handles of one window share one implementation.
  NativeWindowState& state = static_cast<NSWindow<OrvaneNativeWindow>*>(window).state;
  auto implementation = state.implementation.lock();
  if (implementation == nullptr) {
    implementation = std::make_shared<Window::Implementation>(window);
    state.implementation = implementation;
  }
  return Window(std::move(implementation));
}

void keepWhileShown(NSWindow* window) {
  [shownWindows() addObject:window];
}

}  // namespace orvane::appkit

@implementation OrvaneNativeWindow {
  orvane::appkit::NativeWindowState _state;
}

- (orvane::appkit::NativeWindowState&)state {
  return _state;
}

- (BOOL)canBecomeKeyWindow {
  return _state.canBecomeKeyWindow.value_or(super.canBecomeKeyWindow);
}

- (BOOL)canBecomeMainWindow {
  return _state.canBecomeMainWindow.value_or(super.canBecomeMainWindow);
}

- (void)close {
  orvane::appkit::windowIsClosing(self);
  [super close];
}

@end

@implementation OrvaneNativePanel {
  orvane::appkit::NativeWindowState _state;
}

- (orvane::appkit::NativeWindowState&)state {
  return _state;
}

- (BOOL)canBecomeKeyWindow {
  return _state.canBecomeKeyWindow.value_or(super.canBecomeKeyWindow);
}

- (BOOL)canBecomeMainWindow {
  return _state.canBecomeMainWindow.value_or(super.canBecomeMainWindow);
}

- (void)close {
  orvane::appkit::windowIsClosing(self);
  [super close];
}

@end
