// Tests that each callback of the run loop drains its autoreleased objects.
#import <AppKit/AppKit.h>

#include "Orvane/platform/appkit/Timer.hpp"
#include "macos/hosting/FrameSource.hpp"
#include "tests/contract/ContractFixture.hpp"
#include "tests/gnustep/shim/Methods.hpp"

namespace orvane {
namespace {

class Pools : public ContractFixture {
 protected:
  /// Records the timers of the main run loop, so that a test can fire them directly.
  Pools() {
    static IMP const add = gnustep::replaceMethod(
        NSRunLoop.class, @selector(addTimer:forMode:),
        ^(NSRunLoop* loop, NSTimer* timer, NSString* mode) {
          added() = timer;
          gnustep::callReplaced<void, id, id>(add, loop, @selector(addTimer:forMode:), timer, mode);
        });
  }

  static __weak NSTimer*& added() {
    static __weak NSTimer* timer = nil;
    return timer;
  }
  /// Autoreleases an object.
  void leaveAnObject() {
    NSObject* const __autoreleasing object = [[NSObject alloc] init];
    left_ = object;
  }
  [[nodiscard]] bool isObjectGone() const { return left_ == nil; }

 private:
  __weak NSObject* left_ = nil;
};

TEST_F(Pools, ATickHasItsOwn) {
  bool isGoneAtOnce = true;
  const appkit::Timer timer = appkit::Timer::repeating(1000, appkit::RunLoopMode::common, [&] {
    leaveAnObject();
    isGoneAtOnce = isObjectGone();
  });
  [added() fire];
  EXPECT_FALSE(isGoneAtOnce);
  EXPECT_TRUE(isObjectGone());
}

TEST_F(Pools, AFrameHasItsOwn) {
  bool isGoneAtOnce = true;
  NSView* const view = [[NSView alloc] init];
  appkit::FrameSource frames(view, [&] {
    leaveAnObject();
    isGoneAtOnce = isObjectGone();
  });
  frames.start();
  [added() fire];
  EXPECT_FALSE(isGoneAtOnce);
  EXPECT_TRUE(isObjectGone());
}

}  // namespace
}  // namespace orvane
