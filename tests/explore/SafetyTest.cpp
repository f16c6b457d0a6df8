// An application that breaks a promise is seen to do so. What is broken is broken from outside, on
// the machine: taps, objects and stored values as a faulty application would leave them.
#include <gtest/gtest.h>

#include "Orvane/platform/Quartz.hpp"
#include "desk/explore/Trial.hpp"

namespace orvane::desk::explore {
namespace {

class SafetyTest : public testing::Test {
 protected:
  void pin() {
    trial_.takeAll({"display attach 1 frame=0,0,1440,900 uuid=LEFT main",
                    "display attach 2 frame=1440,0,1920,1080 uuid=RIGHT", "trust on", "launch",
                    "do toggleSelectedDisplayLock", "advance 2"});
  }
  /// Empty when none is broken.
  [[nodiscard]] std::string brokenPromise() const {
    return trial_.violation() ? trial_.violation()->promise : "";
  }
  void addTap(CGEventTapCallBack callback) {
    EventTaps& taps = trial_.machine().eventTaps;
    const auto identity = taps.create(kCGHeadInsertEventTap, kCGEventTapOptionDefault,
                                      ~CGEventMask{0}, callback, nullptr);
    taps.find(*identity)->sourceModes = RunLoop::commonModes;
  }

  Trial trial_;
};

CGEventRef drop(CGEventTapProxy, CGEventType, CGEventRef, void*) {
  return nullptr;
}

CGEventRef nudge(CGEventTapProxy, CGEventType, CGEventRef event, void*) {
  const CGPoint place = CGEventGetLocation(event);
  CGEventSetLocation(event, CGPointMake(place.x, place.y - 1));
  return event;
}

TEST_F(SafetyTest, FindsNothingWrongWithAPinnedDock) {
  pin();
  trial_.takeAll({"move 2000 880", "push 0 30 times 30", "hold option", "push 0 30", "release"});
  trial_.end();
  EXPECT_EQ(brokenPromise(), "");
  EXPECT_GT(trial_.eventCount(), 30);
}

TEST_F(SafetyTest, SeesAnEventThatIsDropped) {
  pin();
  addTap(drop);
  trial_.take("move 100 100");
  EXPECT_EQ(brokenPromise(), "filter");
}

TEST_F(SafetyTest, SeesAnEventThatIsMovedWithoutNeed) {
  pin();
  addTap(nudge);
  trial_.take("move 100 100");
  EXPECT_EQ(brokenPromise(), "filter");
}

TEST_F(SafetyTest, SeesAGuardThatDoesNotMoveBack) {
  pin();
  // The tap is enabled as far as anybody can tell, and hears nothing.
  EventTaps& taps = trial_.machine().eventTaps;
  for (std::uint64_t identity = 1; identity < 10; ++identity) {
    if (EventTap* const tap = taps.find(identity)) {
      tap->eventsOfInterest = 0;
    }
  }
  trial_.take("move 2000 899");
  EXPECT_EQ(brokenPromise(), "filter");
}

TEST_F(SafetyTest, SeesASecondTap) {
  pin();
  addTap([](CGEventTapProxy, CGEventType, CGEventRef event, void*) { return event; });
  trial_.take("advance 0.1");
  EXPECT_EQ(brokenPromise(), "taps");
}

TEST_F(SafetyTest, SeesAnObjectThatNobodyReleased) {
  pin();
  CFStringCreateWithCString(kCFAllocatorDefault, "left", kCFStringEncodingUTF8);
  trial_.take("advance 0.1");
  EXPECT_EQ(brokenPromise(), "objects");
}

TEST_F(SafetyTest, SeesAKeyThatIsNotOneOfTheFive) {
  pin();
  trial_.machine().userDefaults.set("windowFrame", 1.0);
  trial_.take("advance 0.1");
  EXPECT_EQ(brokenPromise(), "keys");
}

TEST_F(SafetyTest, SeesAWishThatNobodyWished) {
  pin();
  trial_.machine().userDefaults.set("isOrvaneEnabled", false);
  trial_.take("advance 0.1");
  EXPECT_EQ(brokenPromise(), "guard");
}

TEST_F(SafetyTest, SeesAModelThatForgotWhatIsStored) {
  pin();
  trial_.machine().userDefaults.set("temporaryUnlockModifier", std::string("shift"));
  trial_.take("move 100 100");
  EXPECT_NE(brokenPromise(), "");
}

TEST_F(SafetyTest, SeesTextsInTheWrongLanguage) {
  pin();
  trial_.takeAll({"menu open", "press \"Open Window\" in menu"});
  ASSERT_EQ(brokenPromise(), "");
  // As if the choice had been stored and nothing shown in it.
  trial_.application().model().setAppLanguage(OrvaneLanguage::chinese);
  trial_.machine().userDefaults.set("appLanguage", std::string("english"));
  trial_.take("advance 0.1");
  EXPECT_NE(brokenPromise(), "");
}

TEST_F(SafetyTest, SeesWhatIsLeftAtTheEnd) {
  pin();
  trial_.machine().faults.record("a double release");
  trial_.end();
  EXPECT_EQ(brokenPromise(), "end");
}

}  // namespace
}  // namespace orvane::desk::explore
