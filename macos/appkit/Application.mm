// The application object with NSApplication.
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

// No window state is saved, so none can be tampered with.
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
  // After Command-H the windows would otherwise come back only if the activation is granted.
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
  // Deactivating the application would hide a panel, and the user could not end the session.
  native.hidesOnDeactivate = NO;
  // Otherwise an open alert would keep the user from logging out.
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
  // A session inside the tracking loop of an open menu would leave the menu frozen above it. So
  // cancel tracking, which ends when this task has returned, and then begin the session in a task
  // of the main queue, as it would have begun here. The window's handle is kept until then.
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
  // The session checks this only after an event, so one is posted: a timer or a task does not
  // count.
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
