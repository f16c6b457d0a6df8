// Contract tests for the Accessibility permission and for event taps, their ports and their
// run-loop sources.
#include <vector>

#include "Orvane/base/CFRef.hpp"
#include "Orvane/platform/appkit/Application.hpp"
#include "Orvane/platform/appkit/Screen.hpp"
#include "tests/contract/Arrange.hpp"
#include "tests/contract/ContractFixture.hpp"

namespace orvane {
namespace {

struct Seen {
  CGEventType type;
  CGPoint location;
  CGEventFlags flags;
};

class CGEventTapContract : public ContractFixture {
 protected:
  ~CGEventTapContract() override { endTap(); }

  static CGEventRef callback(CGEventTapProxy, CGEventType type, CGEventRef event, void* userInfo) {
    auto& self = *static_cast<CGEventTapContract*>(userInfo);
    self.seen.push_back({type, CGEventGetLocation(event), CGEventGetFlags(event)});
    if (type == kCGEventMouseMoved && self.dy != 0) {
      CGPoint location = CGEventGetLocation(event);
      location.y += self.dy;
      CGEventSetLocation(event, location);
    }
    return event;
  }
  [[nodiscard]] CFRef<CFMachPortRef> makeTap() {
    return CFRef<CFMachPortRef>::owning(
        CGEventTapCreate(kCGSessionEventTap, kCGTailAppendEventTap, kCGEventTapOptionDefault,
                         CGEventMask{1} << kCGEventMouseMoved, callback, this));
  }
  bool beginTap() {
    port = makeTap();
    if (!port) {
      return false;
    }
    source = CFRef<CFRunLoopSourceRef>::owning(
        CFMachPortCreateRunLoopSource(kCFAllocatorDefault, port.get(), 0));
    CFRunLoopAddSource(CFRunLoopGetCurrent(), source.get(), kCFRunLoopCommonModes);
    CGEventTapEnable(port.get(), true);
    return true;
  }
  void endTap() {
    if (port) {
      CGEventTapEnable(port.get(), false);
      CFRunLoopRemoveSource(CFRunLoopGetCurrent(), source.get(), kCFRunLoopCommonModes);
      CFMachPortInvalidate(port.get());
    }
    source.reset();
    port.reset();
  }

  CFRef<CFMachPortRef> port;
  CFRef<CFRunLoopSourceRef> source;
  std::vector<Seen> seen;
  double dy = 0;
};

TEST_F(CGEventTapContract, ThePermissionIsReadAtEachCallAndWithoutItThereIsNoTap) {
  ORVANE_ARRANGE(setTrusted(false));
  EXPECT_FALSE(AXIsProcessTrusted());
  EXPECT_FALSE(makeTap());
  ORVANE_ARRANGE(setTrusted(true));
  EXPECT_TRUE(AXIsProcessTrusted());
  ORVANE_ARRANGE(setTrusted(false));
  EXPECT_FALSE(AXIsProcessTrusted());
}

TEST_F(CGEventTapContract, ATapCanBeCreatedAndRemovedRepeatedly) {
  ORVANE_ARRANGE(setTrusted(true));
  for (int time = 0; time < 3; ++time) {
    ASSERT_TRUE(beginTap());
    EXPECT_TRUE(CGEventTapIsEnabled(port.get()));
    CGEventTapEnable(port.get(), false);
    EXPECT_FALSE(CGEventTapIsEnabled(port.get()));
    endTap();
  }
}

TEST_F(CGEventTapContract, AMovementHasItsLocationAndTheHeldModifiers) {
  ORVANE_ARRANGE(setTrusted(true) && arrangeTwoDisplays());
  ASSERT_TRUE(beginTap());
  ORVANE_ARRANGE(holdModifiers(kCGEventFlagMaskAlternate | kCGEventFlagMaskShift));
  ORVANE_ARRANGE(movePointer(CGPointMake(300, 200)));
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].type, kCGEventMouseMoved);
  EXPECT_EQ(seen[0].location.x, 300);
  EXPECT_EQ(seen[0].location.y, 200);
  EXPECT_TRUE(seen[0].flags & kCGEventFlagMaskAlternate);
  EXPECT_TRUE(seen[0].flags & kCGEventFlagMaskShift);
  EXPECT_FALSE(seen[0].flags & kCGEventFlagMaskCommand);
}

TEST_F(CGEventTapContract, TheCursorStaysWhereTheCallbackMovedTheEvent) {
  // The real displays of a Mac suffice: the origin of the first is (0, 0).
  (void)arrangeTwoDisplays();
  ORVANE_ARRANGE(setTrusted(true));
  const double height = CGRectGetHeight(appkit::Screen::screens().front().frame());
  ASSERT_TRUE(beginTap());
  dy = -12;
  for (const double y : {400.0, 410.0, 420.0, 430.0, 440.0}) {
    ORVANE_ARRANGE(movePointer(CGPointMake(300, y)));
    ASSERT_FALSE(seen.empty());
    const CGPoint cursor = appkit::Application::mouseLocation();
    EXPECT_NEAR(cursor.x, 300, 1);
    EXPECT_NEAR(height - cursor.y, y + dy, 1);
  }
}

TEST_F(CGEventTapContract, ATapThatIsDisabledRemovedOrInvalidReceivesNothing) {
  ORVANE_ARRANGE(setTrusted(true) && arrangeTwoDisplays());
  ASSERT_TRUE(beginTap());
  CGEventTapEnable(port.get(), false);
  ORVANE_ARRANGE(movePointer(CGPointMake(300, 200)));
  EXPECT_TRUE(seen.empty());
  CGEventTapEnable(port.get(), true);
  ORVANE_ARRANGE(movePointer(CGPointMake(310, 200)));
  EXPECT_EQ(seen.size(), 1U);
  CFRunLoopRemoveSource(CFRunLoopGetCurrent(), source.get(), kCFRunLoopCommonModes);
  ORVANE_ARRANGE(movePointer(CGPointMake(300, 200)));
  EXPECT_EQ(seen.size(), 1U);
  CFMachPortInvalidate(port.get());
  ORVANE_ARRANGE(movePointer(CGPointMake(310, 200)));
  EXPECT_EQ(seen.size(), 1U);
}

TEST_F(CGEventTapContract, ATapThatTheSystemDisablesIsNotifiedAndCanBeEnabledAgain) {
  ORVANE_ARRANGE(setTrusted(true) && arrangeTwoDisplays());
  for (const CGEventType reason : {kCGEventTapDisabledByTimeout, kCGEventTapDisabledByUserInput}) {
    ASSERT_TRUE(beginTap());
    seen.clear();
    ORVANE_ARRANGE(disableTaps(reason));
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen[0].type, reason);
    EXPECT_FALSE(CGEventTapIsEnabled(port.get()));
    CGEventTapEnable(port.get(), true);
    ORVANE_ARRANGE(movePointer(CGPointMake(300, 200)));
    EXPECT_EQ(seen.size(), 2U);
    endTap();
  }
}

}  // namespace
}  // namespace orvane
