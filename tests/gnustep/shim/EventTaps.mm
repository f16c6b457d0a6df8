// Event taps for the pointer movements of tests, with a record of misuse that Quartz would not
// tolerate. Without ARC.
#import <AppKit/AppKit.h>

#include <algorithm>

#include "tests/gnustep/shim/World.hpp"

using orvane::gnustep::world;

struct __CGEvent {
  CGPoint location;
  std::uint64_t flags;
};

@interface OrvaneShimPort : NSObject {
 @public
  CGEventMask _mask;
  CGEventTapCallBack _callback;
  void* _userInfo;
  BOOL _isEnabled;
  BOOL _isValid;
}
@end

@interface OrvaneShimTapSource : NSObject {
 @public
  OrvaneShimPort* _port;
  BOOL _isOnLoop;
}
@end

namespace {

std::vector<OrvaneShimPort*>& ports() {
  static auto* const all = new std::vector<OrvaneShimPort*>;
  return *all;
}

std::vector<OrvaneShimTapSource*>& sources() {
  static auto* const all = new std::vector<OrvaneShimTapSource*>;
  return *all;
}

void expect(bool isFine, const char* fault) {
  if (!isFine) {
    world().tapFaults.emplace_back(fault);
  }
}

/// Whether events reach the port's callback.
bool isLive(const OrvaneShimPort* port) {
  return port->_isValid && std::ranges::any_of(sources(), [port](OrvaneShimTapSource* source) {
           return source->_port == port && source->_isOnLoop;
         });
}

/// Calls the port's callback, which may release the port.
void ask(OrvaneShimPort* port, CGEventType type, CGEventRef event) {
  [port retain];
  port->_callback(nullptr, type, event, port->_userInfo);
  [port release];
}

}  // namespace

@implementation OrvaneShimPort
- (instancetype)init {
  self = [super init];
  ports().push_back(self);
  ++world().liveTapObjects;
  return self;
}
- (void)dealloc {
  expect(!_isValid, "a port ends while it is valid");
  std::erase(ports(), self);
  --world().liveTapObjects;
  [super dealloc];
}
@end

@implementation OrvaneShimTapSource
- (instancetype)initWithPort:(OrvaneShimPort*)port {
  self = [super init];
  _port = [port retain];
  sources().push_back(self);
  ++world().liveTapObjects;
  return self;
}
- (void)dealloc {
  expect(!_isOnLoop, "a source ends while it is on the run loop");
  std::erase(sources(), self);
  [_port release];
  --world().liveTapObjects;
  [super dealloc];
}
@end

CFMachPortRef CGEventTapCreate(CGEventTapLocation, CGEventTapPlacement, CGEventTapOptions,
                               CGEventMask mask, CGEventTapCallBack callback, void* userInfo) {
  if (!AXIsProcessTrusted()) {
    return nullptr;
  }
  OrvaneShimPort* const port = [[OrvaneShimPort alloc] init];
  port->_mask = mask;
  port->_callback = callback;
  port->_userInfo = userInfo;
  port->_isValid = YES;
  port->_isEnabled = YES;
  return (CFMachPortRef)port;
}
void CGEventTapEnable(CFMachPortRef tap, bool isEnabled) {
  OrvaneShimPort* const port = (OrvaneShimPort*)tap;
  expect(port->_isValid, "an invalid port is enabled or disabled");
  port->_isEnabled = isEnabled;
}
bool CGEventTapIsEnabled(CFMachPortRef tap) {
  OrvaneShimPort* const port = (OrvaneShimPort*)tap;
  return port->_isValid && port->_isEnabled;
}
CGEventFlags CGEventGetFlags(CGEventRef event) {
  return static_cast<CGEventFlags>(event->flags);
}
CGPoint CGEventGetLocation(CGEventRef event) {
  return event->location;
}
void CGEventSetLocation(CGEventRef event, CGPoint location) {
  event->location = location;
}

CFRunLoopSourceRef CFMachPortCreateRunLoopSource(CFAllocatorRef, CFMachPortRef port, CFIndex) {
  return ((OrvaneShimPort*)port)->_isValid
             ? (CFRunLoopSourceRef)[[OrvaneShimTapSource alloc] initWithPort:(OrvaneShimPort*)port]
             : nullptr;
}
void CFMachPortInvalidate(CFMachPortRef reference) {
  OrvaneShimPort* const port = (OrvaneShimPort*)reference;
  expect(!port->_isEnabled, "a port is invalidated while it is enabled");
  expect(!isLive(port), "a port is invalidated while its source is on the run loop");
  port->_isValid = NO;
}
CFRunLoopRef CFRunLoopGetCurrent() {
  return (CFRunLoopRef)NSRunLoop.currentRunLoop;
}
void CFRunLoopAddSource(CFRunLoopRef loop, CFRunLoopSourceRef source, CFRunLoopMode mode) {
  expect((id)loop == NSRunLoop.mainRunLoop, "a source is added to another run loop");
  expect(mode == kCFRunLoopCommonModes, "a source is added in one mode only");
  ((OrvaneShimTapSource*)source)->_isOnLoop = YES;
}
void CFRunLoopRemoveSource(CFRunLoopRef, CFRunLoopSourceRef source, CFRunLoopMode) {
  expect(((OrvaneShimTapSource*)source)->_isOnLoop, "a source is removed that was not there");
  ((OrvaneShimTapSource*)source)->_isOnLoop = NO;
}

namespace orvane::gnustep {

void movePointer(CGPoint goal) {
  __CGEvent event{goal, world().heldModifiers};
  for (OrvaneShimPort* port : std::vector(ports())) {
    if (isLive(port) && port->_isEnabled &&
        (port->_mask & (CGEventMask{1} << kCGEventMouseMoved)) != 0) {
      ask(port, kCGEventMouseMoved, &event);
    }
  }
  world().pointer = event.location;
}

void disableTaps(CGEventType reason) {
  __CGEvent event{world().pointer, 0};
  for (OrvaneShimPort* port : std::vector(ports())) {
    if (isLive(port)) {
      port->_isEnabled = NO;
      ask(port, reason, &event);
    }
  }
}

int liveTaps() {
  return static_cast<int>(std::ranges::count_if(ports(), isLive));
}

int enabledTaps() {
  return static_cast<int>(std::ranges::count_if(
      ports(), [](OrvaneShimPort* port) { return isLive(port) && port->_isEnabled; }));
}

void announceDisplays() {
  [NSNotificationCenter.defaultCenter
      postNotificationName:NSApplicationDidChangeScreenParametersNotification
                    object:NSApp];
}

}  // namespace orvane::gnustep
