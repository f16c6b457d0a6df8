// Shows views, and sends events to them.
#include "tests/gnustep/MacHalfFixture.hpp"

#include <utility>

#include "Orvane/platform/appkit/MainQueue.hpp"
#include "macos/appkit/NativeWindow.hpp"
#include "macos/hosting/HostingContainer.hpp"

namespace orvane {

appkit::Window MacHalfFixture::show(appkit::HostingView::RootBuilder root) {
  appkit::Window window(appkit::WindowKind::panel, CGRectMake(100, 100, 200, 100),
                        appkit::StyleMask::nonactivatingPanel);
  window.setCanBecomeKeyWindow(true);
  window.setHidesOnDeactivate(false);
  window.setContentView(appkit::HostingView(std::move(root)));
  window.makeKeyAndOrderFront();
  letTimePass(0.05);
  return window;
}

NSWindow* MacHalfFixture::nativeOf(const appkit::Window& window) {
  return window.implementation()->window;
}

OrvaneHostView* MacHalfFixture::hostOf(const appkit::Window& window) {
  return static_cast<OrvaneHostingContainer*>(nativeOf(window).contentView).hostView;
}

NSEvent* MacHalfFixture::mouseEvent(NSWindow* window, NSEventType type, double x, double y) {
  return [NSEvent mouseEventWithType:type
                            location:NSMakePoint(x, NSHeight([window.contentView frame]) - y)
                       modifierFlags:0
                           timestamp:0
                        windowNumber:window.windowNumber
                             context:nil
                         eventNumber:0
                          clickCount:1
                            pressure:1];
}

void MacHalfFixture::mouse(NSWindow* window, NSEventType type, double x, double y) {
  [NSApp sendEvent:mouseEvent(window, type, x, y)];
}

void MacHalfFixture::click(NSWindow* window, double x, double y) {
  mouse(window, NSLeftMouseDown, x, y);
  mouse(window, NSLeftMouseUp, x, y);
}

NSEvent* MacHalfFixture::keyEvent(NSWindow* window, NSString* characters, NSUInteger modifiers,
                                  BOOL isRepeated) {
  return [NSEvent keyEventWithType:NSKeyDown
                          location:NSZeroPoint
                     modifierFlags:modifiers
                         timestamp:0
                      windowNumber:window.windowNumber
                           context:nil
                        characters:characters
       charactersIgnoringModifiers:characters
                         isARepeat:isRepeated
                           keyCode:0];
}

void MacHalfFixture::key(NSWindow* window, NSString* characters, NSUInteger modifiers,
                         BOOL isRepeated) {
  [NSApp sendEvent:keyEvent(window, characters, modifiers, isRepeated)];
}

NSWindow* MacHalfFixture::openMenuWindow() {
  for (NSWindow* window in NSApp.windows) {
    if (window.visible && [window.identifier isEqual:@"OrvaneShimMenu"]) {
      return window;
    }
  }
  return nil;
}

void MacHalfFixture::typeSoonIntoMenu(NSArray* keys) {
  appkit::MainQueue::asyncAfter(0.2, [keys] {
    EXPECT_NE(openMenuWindow(), nil);
    for (NSString* characters in keys) {
      [NSApp postEvent:keyEvent(openMenuWindow(), characters) atStart:NO];
    }
  });
}

NSString* MacHalfFixture::functionKey(unichar key) {
  return [NSString stringWithCharacters:&key length:1];
}

}  // namespace orvane
