// Calls back once per frame of a view's display during animations.
#include "macos/hosting/FrameSource.hpp"

#import <QuartzCore/QuartzCore.h>

#include <utility>

/// The target of a display link or a timer, both of which retain it until they are invalidated.
@interface OrvaneFrameTarget : NSObject {
 @public
  std::function<void()> _frame;
}
- (void)frameComes:(id)sender;
@end

@implementation OrvaneFrameTarget

- (void)frameComes:(id)sender {
  // The frame may stop its own source.
  const std::function<void()> frame = _frame;
  @autoreleasepool {
    frame();
  }
}

@end

namespace orvane::appkit {

FrameSource::FrameSource(NSView* view, std::function<void()> frame)
    : view_(view), frame_(std::move(frame)) {}

FrameSource::~FrameSource() {
  stop();
}

void FrameSource::start() {
  NSView* const view = view_;
  if (running_ != nil || view == nil) {
    return;
  }
  OrvaneFrameTarget* const target = [[OrvaneFrameTarget alloc] init];
  target->_frame = frame_;
  if (@available(macOS 14, *)) {
    CADisplayLink* const link = [view displayLinkWithTarget:target selector:@selector(frameComes:)];
    [link addToRunLoop:NSRunLoop.mainRunLoop forMode:NSRunLoopCommonModes];
    running_ = link;
    return;
  }
  const NSInteger framesPerSecond = view.window.screen.maximumFramesPerSecond;
  NSTimer* const timer =
      [NSTimer timerWithTimeInterval:1.0 / static_cast<double>(MAX(framesPerSecond, 60))
                              target:target
                            selector:@selector(frameComes:)
                            userInfo:nil
                             repeats:YES];
  [NSRunLoop.mainRunLoop addTimer:timer forMode:NSRunLoopCommonModes];
  running_ = timer;
}

void FrameSource::stop() {
  [running_ invalidate];
  running_ = nil;
}

}  // namespace orvane::appkit
