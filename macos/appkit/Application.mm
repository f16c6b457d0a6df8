// The application object on NSApplication.
#include "Orvane/platform/appkit/Application.hpp"

#import <AppKit/AppKit.h>

#include <utility>

#include "Orvane/platform/appkit/MainQueue.hpp"
#include "macos/appkit/KeyEquivalents.hpp"
#include "macos/appkit/MenuImplementation.hpp"
#include "macos/appkit/NativeWindow.hpp"

@interface OrvaneApplicationDelegate : NSObject <NSApplicationDelegate> {
 @public
  orvane::appkit::ApplicationDelegate _delegate;
}
@end

@implementation OrvaneApplicationDelegate

- (void)applicationDidFinishLaunching:(NSNotification*)notification {
  if (_delegate.didFinishLaunching) {
    _delegate.didFinishLaunching();
  }
}

- (BOOL)applicationShouldHandleReopen:(NSApplication*)application
                    hasVisibleWindows:(BOOL)hasVisibleWindows {
  return !_delegate.shouldHandleReopen || _delegate.shouldHandleReopen(hasVisibleWindows);
}

- (void)applicationWillTerminate:(NSNotification*)notification {
  if (_delegate.willTerminate) {
    _delegate.willTerminate();
  }
}

// Nothing of a window is saved, and what is not saved cannot be tampered with.
- (BOOL)applicationSupportsSecureRestorableState:(NSApplication*)application {
  return YES;
}

@end

namespace orvane::appkit {

void Application::setDelegate(ApplicationDelegate delegate) {
  // The application holds its delegate weakly.
  static OrvaneApplicationDelegate* native = nil;
  native = [[OrvaneApplicationDelegate alloc] init];
  native->_delegate = std::move(delegate);
  NSApplication.sharedApplication.delegate = native;
}

bool performKeyEquivalent(const ui::KeyEvent& event) {
  const id delegate = NSApplication.sharedApplication.delegate;
  if (![delegate isKindOfClass:OrvaneApplicationDelegate.class]) {
    return false;
  }
  const auto perform =
      static_cast<OrvaneApplicationDelegate*>(delegate)->_delegate.performKeyEquivalent;
  return perform && perform(event);
}

void Application::setActivationPolicy(ActivationPolicy policy) {
  [NSApplication.sharedApplication
      setActivationPolicy:static_cast<NSApplicationActivationPolicy>(policy)];
}

void Application::activateIgnoringOtherApps() {
  // After Command with H only a granted activation would bring the windows back.
  [NSApplication.sharedApplication unhideWithoutActivation];
  if (@available(macOS 14, *)) {
    [NSApplication.sharedApplication activate];
  } else {
    [NSApplication.sharedApplication activateIgnoringOtherApps:YES];
  }
}

void Application::hide() {
  [NSApplication.sharedApplication hide:nil];
}

void Application::terminate() {
  [NSApplication.sharedApplication terminate:nil];
}

std::optional<Window> Application::keyWindow() {
  return windowFrom(NSApplication.sharedApplication.keyWindow);
}

std::optional<Window> Application::modalWindow() {
  return windowFrom(NSApplication.sharedApplication.modalWindow);
}

CGPoint Application::mouseLocation() {
  return NSEvent.mouseLocation;
}

namespace {

void runModalNow(NSWindow* native, const std::function<void(int response)>& ended) {
  keepWhileShown(native);
  // A panel would be hidden with the application's deactivation, and nobody could end the session.
  native.hidesOnDeactivate = NO;
  // Otherwise an alert that waits for its answer would keep its user from logging out.
  native.preventsApplicationTerminationWhenModal = NO;
  const NSModalResponse response = [NSApplication.sharedApplication runModalForWindow:native];
  ended(static_cast<int>(response));
}

}  // namespace

void Application::runModal(const Window& window, std::function<void(int response)> ended) {
  NSWindow* const native = window.implementation()->window;
  if (openMenu() == nil) {
    runModalNow(native, ended);
    return;
  }
  // A session inside the loop of an open menu would leave the menu standing, frozen, over it. The
  // loop ends when this task has returned; then the session begins in a task of the main queue, as
  // it would have here. The window's handle is kept until then.
  [openMenu() cancelTrackingWithoutAnimation];
  whenNoMenuIsTracked([window, ended = std::move(ended)] {
    MainQueue::async([window, ended] { runModalNow(window.implementation()->window, ended); });
  });
}

void Application::stopModal(int response) {
  NSApplication* const application = NSApplication.sharedApplication;
  if (application.modalWindow == nil) {
    return;
  }
  [application stopModalWithCode:response];
  // The session looks at this when it has had an event, which a timer or a task is not.
  NSEvent* const nudge = [NSEvent otherEventWithType:NSEventTypeApplicationDefined
                                            location:NSZeroPoint
                                       modifierFlags:0
                                           timestamp:0
                                        windowNumber:0
                                             context:nil
                                             subtype:0
                                               data1:0
                                               data2:0];
  if (nudge != nil) {
    [application postEvent:nudge atStart:YES];
  }
}

}  // namespace orvane::appkit
