// MacHalfFixture shows views in windows of their own, and sends these what AppKit would send them.
#pragma once

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
 protected:
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
  /// Soon, a menu that is open by then is sent these keys, one after another.
  static void typeSoonIntoMenu(NSArray* keys);
  static NSString* functionKey(unichar key);
};

}  // namespace orvane
