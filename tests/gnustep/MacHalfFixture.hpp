// MacHalfFixture shows views in windows, and sends the windows the events that AppKit would send.
#pragma once

#include <functional>

#import <AppKit/AppKit.h>

#include "Orvane/platform/appkit/HostingView.hpp"
#include "Orvane/platform/appkit/Window.hpp"
#include "macos/hosting/HostView.hpp"
#include "tests/contract/ContractFixture.hpp"

/// The methods that assistive programs call on a host view and its elements.
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
  /// Runs the run loop until a condition holds, for some seconds at most; returns whether it does.
  [[nodiscard]] bool isSoon(const std::function<bool()>& condition);
  /// Runs an action as soon as a condition holds, in any mode of the run loop.
  void when(const std::function<bool()>& condition, const std::function<void()>& action);

  /// A key panel of 200 by 100 points at (100, 100).
  appkit::Window show(appkit::HostingView::RootBuilder root);

  static NSWindow* nativeOf(const appkit::Window& window);
  static OrvaneHostView* hostOf(const appkit::Window& window);

  /// A mouse event at a point relative to the top left corner of the content.
  static NSEvent* mouseEvent(NSWindow* window, NSEventType type, double x, double y);
  static void mouse(NSWindow* window, NSEventType type, double x, double y);
  static void click(NSWindow* window, double x, double y);
  static NSEvent* keyEvent(NSWindow* window, NSString* characters, NSUInteger modifiers = 0,
                           BOOL isRepeated = NO);
  static void key(NSWindow* window, NSString* characters, NSUInteger modifiers = 0,
                  BOOL isRepeated = NO);

  /// The window of the open menu; nil if there is none.
  static NSWindow* openMenuWindow();
  /// Sends these keys, one after another, to the next menu that opens.
  void typeIntoMenu(NSArray* keys);
  static NSString* functionKey(unichar key);

 private:
  NSMutableArray* timers_ = [NSMutableArray array];
};

}  // namespace orvane
