// The NSWindow and the NSPanel behind a Window, and what the window system does not keep for them.
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
  /// Empty: as the window system decides.
  std::optional<bool> canBecomeKeyWindow;
  std::optional<bool> canBecomeMainWindow;
  std::optional<HostingView> content;
  std::function<void()> willClose;
  /// The implementation that handles of this window share, as long as there is one.
  std::weak_ptr<Window::Implementation> implementation;
};

}  // namespace orvane::appkit

/// A window of the application's own. It belongs to its handles, to a parent window, and to the
/// screen while it is shown there.
@protocol OrvaneNativeWindow <NSObject>
- (orvane::appkit::NativeWindowState&)state;
@end

@interface OrvaneNativeWindow : NSWindow <OrvaneNativeWindow>
@end

@interface OrvaneNativePanel : NSPanel <OrvaneNativeWindow>
@end

namespace orvane::appkit {

/// A handle of the window; none for nil and for a window that is not the application's own.
[[nodiscard]] std::optional<Window> windowFrom(NSWindow* _Nullable window);

/// Holds the window while it is on the screen or miniaturised.
void keepWhileShown(NSWindow* _Nonnull window);

}  // namespace orvane::appkit
