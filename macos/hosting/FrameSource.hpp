// Calls back once per frame of a view's display during animations.
#pragma once

#include <functional>

#import <AppKit/AppKit.h>

namespace orvane::appkit {

/// Main thread only. Frames come in all modes of the run loop.
class FrameSource {
 public:
  /// `view` is held weakly.
  FrameSource(NSView* _Nonnull view, std::function<void()> frame);
  FrameSource(const FrameSource&) = delete;
  FrameSource& operator=(const FrameSource&) = delete;
  ~FrameSource();

  /// Starting or stopping twice does nothing.
  void start();
  void stop();

 private:
  __weak NSView* _Nullable view_;
  std::function<void()> frame_;
  /// A CADisplayLink from macOS 14 on, before it an NSTimer.
  id _Nullable running_ = nil;
};

}  // namespace orvane::appkit
