// Each test puts the machine into a state that only a faulty application would leave behind.
#include <gtest/gtest.h>

#include "Orvane/platform/Quartz.hpp"
#include "desk/explore/CheckedSession.hpp"

namespace orvane::desk::explore {
namespace {

class InvariantCheckerTest : public testing::Test {
 protected:
  void pin() {
    session.runAll({"display attach 1 frame=0,0,1440,900 uuid=LEFT main",
                    "display attach 2 frame=1440,0,1920,1080 uuid=RIGHT", "trust on", "launch",
                    "do toggleSelectedDisplayLock", "advance 2"});
  }
  /// Empty without a violation.
  [[nodiscard]] std::string violatedInvariant() const {
    return session.violation() ? session.violation()->invariant : "";
  }
  void addTap(CGEventTapCallBack callback) {
    EventTaps& taps = session.machine().eventTaps;
    const auto identity = taps.create(kCGHeadInsertEventTap, kCGEventTapOptionDefault,
                                      ~CGEventMask{0}, callback, nullptr);
    taps.find(*identity)->sourceModes = RunLoop::commonModes;
  }

  CheckedSession session;
};

CGEventRef drop(CGEventTapProxy, CGEventType, CGEventRef, void*) {
  return nullptr;
}

CGEventRef nudge(CGEventTapProxy, CGEventType, CGEventRef event, void*) {
  const CGPoint place = CGEventGetLocation(event);
  CGEventSetLocation(event, CGPointMake(place.x, place.y - 1));
  return event;
}

TEST_F(InvariantCheckerTest, AcceptsAPinnedDock) {
  pin();
  session.runAll({"move 2000 880", "push 0 30 times 30", "hold option", "push 0 30", "release"});
  session.end();
  EXPECT_EQ(violatedInvariant(), "");
  EXPECT_GT(session.eventCount(), 30);
}

TEST_F(InvariantCheckerTest, DetectsADroppedEvent) {
  pin();
  addTap(drop);
  session.run("move 100 100");
  EXPECT_EQ(violatedInvariant(), "filter");
}

TEST_F(InvariantCheckerTest, DetectsAnEventMovedWithoutNeed) {
  pin();
  addTap(nudge);
  session.run("move 100 100");
  EXPECT_EQ(violatedInvariant(), "filter");
}

TEST_F(InvariantCheckerTest, DetectsAGuardThatDoesNotMoveEvents) {
  pin();
  // The tap is enabled but receives no events.
  EventTaps& taps = session.machine().eventTaps;
  for (std::uint64_t identity = 1; identity < 10; ++identity) {
    if (EventTap* const tap = taps.find(identity)) {
      tap->eventsOfInterest = 0;
    }
  }
  session.run("move 2000 899");
  EXPECT_EQ(violatedInvariant(), "filter");
}

TEST_F(InvariantCheckerTest, DetectsASecondTap) {
  pin();
  addTap([](CGEventTapProxy, CGEventType, CGEventRef event, void*) { return event; });
  session.run("advance 0.1");
  EXPECT_EQ(violatedInvariant(), "taps");
}

TEST_F(InvariantCheckerTest, DetectsATapThatReceivesMoreThanMovements) {
  pin();
  EventTaps& taps = session.machine().eventTaps;
  for (std::uint64_t identity = 1; identity < 10; ++identity) {
    if (EventTap* const tap = taps.find(identity)) {
      constexpr unsigned leftMouseDragged = 6;
      tap->eventsOfInterest |= CGEventMask{1} << leftMouseDragged;
    }
  }
  session.run("advance 0.1");
  EXPECT_EQ(violatedInvariant(), "taps");
}

TEST_F(InvariantCheckerTest, DetectsALeakedObject) {
  pin();
  CFStringCreateWithCString(kCFAllocatorDefault, "left", kCFStringEncodingUTF8);
  session.run("advance 0.1");
  EXPECT_EQ(violatedInvariant(), "objects");
}

TEST_F(InvariantCheckerTest, DetectsAnUnknownStoredKey) {
  pin();
  session.machine().userDefaults.set("windowFrame", 1.0);
  session.run("advance 0.1");
  EXPECT_EQ(violatedInvariant(), "keys");
}

TEST_F(InvariantCheckerTest, DetectsAGuardThatRunsWithTheLockOff) {
  pin();
  session.machine().userDefaults.set("isOrvaneEnabled", false);
  session.run("advance 0.1");
  EXPECT_EQ(violatedInvariant(), "guard");
}

TEST_F(InvariantCheckerTest, DetectsAModelThatDiffersFromTheStoredValue) {
  session.runAll({"display attach 1 frame=0,0,1440,900", "launch"});
  session.machine().userDefaults.set("temporaryUnlockModifier", std::string("shift"));
  session.run("move 100 100");
  EXPECT_EQ(violatedInvariant(), "stored");
}

TEST_F(InvariantCheckerTest, DetectsTextsInTheWrongLanguage) {
  pin();
  session.runAll({"menu open", "press \"Settings\" in menu"});
  ASSERT_EQ(violatedInvariant(), "");
  // As if a text of the application were in Chinese.
  session.machine().loginItem.error = "失败";
  session.application().model().setLaunchAtLoginEnabled(true);
  session.machine().loginItem.error.reset();
  session.run("advance 0.1");
  EXPECT_EQ(violatedInvariant(), "texts");
}

TEST_F(InvariantCheckerTest, DetectsFaultsAtTheEnd) {
  pin();
  session.machine().faults.record("a double release");
  session.end();
  EXPECT_EQ(violatedInvariant(), "end");
}

}  // namespace
}  // namespace orvane::desk::explore
