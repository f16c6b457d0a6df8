// MacHalfFixture shows views in windows of their own, and sends these what AppKit would send them.
#pragma once

#include <functional>

#import <AppKit/AppKit.h>

#include "Orvane/platform/appkit/HostingView.hpp"
#include "Orvane/platform/appkit/Window.hpp"
#include "macos/hosting/HostView.hpp"
#include "tests/contract/ContractFixture.hpp"

/// What assistive programs ask of a host view and its elements.
@interface NSObject (OrvaneAccessibility)
- (NSArray*)accessibilityChildren;
- (id)accessibilityFocusedUIElement;
- (BOOL)accessibilityPerformPress;
- (BOOL)isAccessibilityFocused;
- (void)setAccessibilityFocused:(BOOL)focused;
@end

namespace orvane {

class MacHalfFixture : public ContractFixture {
 public:
  ~MacHalfFixture() override;

 protected:
  /// Time passes until something is so, some seconds at most; whether it is.
  [[nodiscard]] bool isSoon(const std::function<bool()>& condition);
  /// Does something as soon as something is so, in whatever mode the run loop is then.
  void when(const std::function<bool()>& condition, const std::function<void()>& action);

  /// A key panel of 200 by 100 points at (100, 100).
  appkit::Window show(appkit::HostingView::RootBuilder root);

  static NSWindow* nativeOf(const appkit::Window& window);
  static OrvaneHostView* hostOf(const appkit::Window& window);

  /// An event of the mouse, by the distance from the top left of the content.
  static NSEvent* mouseEvent(NSWindow* window, NSEventType type, double x, double y);
  static void mouse(NSWindow* window, NSEventType type, double x, double y);
  static void click(NSWindow* window, double x, double y);
  static NSEvent* keyEvent(NSWindow* window, NSString* characters, NSUInteger modifiers = 0,
                           BOOL isRepeated = NO);
  static void key(NSWindow* window, NSString* characters, NSUInteger modifiers = 0,
                  BOOL isRepeated = NO);

  /// The window of the menu that is open; nil when none is.
  static NSWindow* openMenuWindow();
  /// When a menu is open, it is sent these keys, one after another.
  void typeIntoMenu(NSArray* keys);
  static NSString* functionKey(unichar key);

 private:
  NSMutableArray* timers_ = [NSMutableArray array];
};

}  // namespace orvane
