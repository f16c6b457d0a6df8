// Shows views in windows and sends events to them.
#include "tests/gnustep/MacHalfFixture.hpp"

#include <utility>

#include "macos/appkit/NativeView.hpp"
#include "macos/appkit/NativeWindow.hpp"

namespace orvane {

namespace {

/// Ample even on a busy machine.
constexpr double patienceSeconds = 20;

}  // namespace

MacHalfFixture::~MacHalfFixture() {
  // The timers refer to objects of the test.
  for (NSTimer* timer in timers_) {
    [timer invalidate];
  }
}

bool MacHalfFixture::isSoon(const std::function<bool()>& condition) {
  NSDate* const end = [NSDate dateWithTimeIntervalSinceNow:patienceSeconds];
  while (!condition() && end.timeIntervalSinceNow > 0) {
    letTimePass(0.01);
  }
  return condition();
}

void MacHalfFixture::when(const std::function<bool()>& condition,
                          const std::function<void()>& action) {
  NSDate* const end = [NSDate dateWithTimeIntervalSinceNow:patienceSeconds];
  const auto isDue = condition;
  const auto act = action;
  NSTimer* const timer = [NSTimer timerWithTimeInterval:0.02
                                                repeats:YES
                                                  block:^(NSTimer* running) {
                                                    if (isDue()) {
                                                      // The timer releases this block.
                                                      const std::function<void()> acting = act;
                                                      [running invalidate];
                                                      acting();
                                                    } else if (end.timeIntervalSinceNow < 0) {
                                                      [running invalidate];
                                                      ADD_FAILURE() << "the condition never held";
                                                    }
                                                  }];
  [NSRunLoop.mainRunLoop addTimer:timer forMode:NSRunLoopCommonModes];
  [timers_ addObject:timer];
}

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
  return static_cast<OrvaneHostView*>(appkit::keyView(*window.contentView()));
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

void MacHalfFixture::typeIntoMenu(NSArray* keys) {
  when([] { return openMenuWindow() != nil; },
       [keys] {
         for (NSString* characters in keys) {
           [NSApp postEvent:keyEvent(openMenuWindow(), characters) atStart:NO];
         }
       });
}

NSString* MacHalfFixture::functionKey(unichar key) {
  return [NSString stringWithCharacters:&key length:1];
}

}  // namespace orvane
