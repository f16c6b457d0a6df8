// Run loops as on macOS: common modes, blocks, and a main queue that is drained in all modes.
#include <sys/eventfd.h>

#include <utility>

#include "tests/gnustep/shim/Methods.hpp"

@interface OrvaneShimBlock : NSObject {
 @public
  void (^_block)(void);
}
- (void)run:(id)argument;
@end

@implementation OrvaneShimBlock
- (void)run:(id)argument {
  void (^const block)(void) = std::exchange(_block, nil);
  if (block != nil) {
    block();
  }
}
@end

/// GNUstep's class that drains the main queue, which watches a file descriptor.
@interface NSObject (OrvaneShimMainQueueDrainer)
+ (void*)mainQueueFileDescriptor;
- (void)receivedEvent:(void*)data
                 type:(RunLoopEventType)type
                extra:(void*)extra
              forMode:(NSString*)mode;
@end

namespace {

NSArray* commonModes() {
  return @[ NSDefaultRunLoopMode, NSModalPanelRunLoopMode, NSEventTrackingRunLoopMode ];
}

Class drainer() {
  return NSClassFromString(@"GSMainQueueDrainer");
}

int descriptorFrom(void* data) {
  return static_cast<int>(reinterpret_cast<std::intptr_t>(data));
}

/// Needed because timers, performers and posted events do not wake GNUstep's run loop.
void wakeLoop() {
  eventfd_write(descriptorFrom([drainer() mainQueueFileDescriptor]), 1);
}

}  // namespace

@implementation NSRunLoop (OrvaneShim)

- (void)performInModes:(NSArray*)modes block:(void (^)(void))block {
  NSArray* const all = [modes containsObject:NSRunLoopCommonModes] ? commonModes() : modes;
  OrvaneShimBlock* const performer = [[OrvaneShimBlock alloc] init];
  performer->_block = [block copy];
  [self performSelector:@selector(run:) target:performer argument:nil order:0 modes:all];
  wakeLoop();
}

@end

@implementation NSTimer (OrvaneShim)
ORVANE_STORED_NUMBER(NSTimeInterval, tolerance, setTolerance, doubleValue)
@end

namespace orvane::gnustep {

void installRunLoop() {
  static IMP const addTimer = replaceMethod(
      NSRunLoop.class, @selector(addTimer:forMode:),
      ^(NSRunLoop* loop, NSTimer* timer, NSString* mode) {
        for (NSString* each in [mode isEqual:NSRunLoopCommonModes] ? commonModes() : @[ mode ]) {
          callReplaced<void, id, id>(addTimer, loop, @selector(addTimer:forMode:), timer, each);
        }
      });

  // A main-queue task never runs inside another; tasks added meanwhile run after it.
  static bool isServing = false;
  static bool hasMissed = false;
  static const SEL received = @selector(receivedEvent:type:extra:forMode:);
  static IMP const serve =
      replaceMethod(drainer(), received,
                    ^(id watcher, void* data, RunLoopEventType type, void* extra, NSString* mode) {
                      const int descriptor = descriptorFrom(data);
                      if (isServing) {
                        eventfd_t count = 0;
                        eventfd_read(descriptor, &count);
                        hasMissed = true;
                        return;
                      }
                      isServing = true;
                      callReplaced<void, void*, RunLoopEventType, void*, id>(
                          serve, watcher, received, data, type, extra, mode);
                      isServing = false;
                      if (std::exchange(hasMissed, false)) {
                        eventfd_write(descriptor, 1);
                      }
                    });
  static const id watcher = [[drainer() alloc] init];
  for (NSString* mode in @[ NSModalPanelRunLoopMode, NSEventTrackingRunLoopMode ]) {
    [NSRunLoop.mainRunLoop addEvent:[drainer() mainQueueFileDescriptor]
                               type:ET_RDESC
                            watcher:watcher
                            forMode:mode];
  }

  static const SEL post = @selector(postEvent:atStart:);
  static IMP const postEvent = replaceMethod(
      NSApplication.class, post, ^(NSApplication* application, NSEvent* event, BOOL isFirst) {
        callReplaced<void, id, BOOL>(postEvent, application, post, event, isFirst);
        wakeLoop();
      });
}

}  // namespace orvane::gnustep
