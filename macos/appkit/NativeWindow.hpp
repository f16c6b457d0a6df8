// The NSWindow or NSPanel behind a Window, and its state that the window system does not store.
#pragma once

#include <functional>
#include <memory>
#include <optional>

#import <AppKit/AppKit.h>

#include "Orvane/platform/appkit/HostingView.hpp"
#include "Orvane/platform/appkit/Window.hpp"

namespace orvane::appkit {

struct Window::Implementation {
  explicit Implementation(NSWindow* _Nonnull native) : window(native) {}

  NSWindow* _Nonnull window;
};

struct NativeWindowState {
  /// Empty for the window system's default.
  std::optional<bool> canBecomeKeyWindow;
  std::optional<bool> canBecomeMainWindow;
  std::optional<HostingView> content;
  std::function<void()> willClose;
  /// The implementation that handles of this window share, as long as there is one.
  std::weak_ptr<Window::Implementation> implementation;
};

}  // namespace orvane::appkit

/// A window of the application. It is owned by its handles, by a parent window, and by the screen
/// while it is shown.
@protocol OrvaneNativeWindow <NSObject>
- (orvane::appkit::NativeWindowState&)state;
@end

@interface OrvaneNativeWindow : NSWindow <OrvaneNativeWindow>
@end

@interface OrvaneNativePanel : NSPanel <OrvaneNativeWindow>
@end

namespace orvane::appkit {

/// A handle to the window; none for nil and for a window that the application did not create.
[[nodiscard]] std::optional<Window> windowFrom(NSWindow* _Nullable window);

/// Retains the window until it closes.
void keepWhileShown(NSWindow* _Nonnull window);

}  // namespace orvane::appkit
