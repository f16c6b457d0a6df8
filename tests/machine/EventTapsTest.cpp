// Event taps: order, event masks, sources, disabling and ending.
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "desk/machine/EventTaps.hpp"

namespace orvane::desk {
namespace {

/// The action of a test's callback, passed as its user data.
using Action = std::function<CGEventRef(CGEventType, CGEventRef)>;

CGEventRef callAction(CGEventTapProxy, CGEventType type, CGEventRef event, void* userInfo) {
  return (*static_cast<Action*>(userInfo))(type, event);
}

constexpr CGEventMask mouseMovedMask = CGEventMask{1} << kCGEventMouseMoved;

class EventTapsTest : public testing::Test {
 protected:
  std::uint64_t make(Action& action, CGEventTapPlacement placement = kCGTailAppendEventTap,
                     CGEventMask mask = mouseMovedMask,
                     CGEventTapOptions options = kCGEventTapOptionDefault) {
    const auto identity = taps.create(placement, options, mask, callAction, &action);
    taps.find(*identity)->sourceModes = RunLoop::commonModes;
    return *identity;
  }
  /// Logs its name and adds `dx` to the event's location.
  Action shift(std::string name, double dx) {
    return [this, name = std::move(name), dx](CGEventType, CGEventRef seen) {
      log.emplace_back(name);
      seen->location.x += dx;
      return seen;
    };
  }

  Clock clock;
  Faults faults;
  RunLoop runLoop{clock, faults};
  EventTaps taps{runLoop};
  __CGEvent event{kCGEventMouseMoved, CGEventFlags{}, {10, 20}};
  std::vector<std::string> log;
  using Log = std::vector<std::string>;
};

TEST_F(EventTapsTest, TapsAreCalledFromHeadToTail) {
  Action first = shift("first", 1);
  Action second = shift("second", 2);
  Action head = shift("head", 4);
  make(first);
  make(second);
  make(head, kCGHeadInsertEventTap);
  EXPECT_TRUE(taps.deliver(event));
  EXPECT_EQ(log, (Log{"head", "first", "second"}));
  EXPECT_EQ(event.location.x, 17);
  EXPECT_EQ(taps.deliveryCount(), 3);
}

TEST_F(EventTapsTest, ATapReceivesOnlyEventsOfItsMask) {
  Action action = shift("tap", 1);
  make(action, kCGTailAppendEventTap, CGEventMask{1} << 1U);
  EXPECT_TRUE(taps.deliver(event));
  EXPECT_TRUE(log.empty());
}

TEST_F(EventTapsTest, ATapWithoutASourceInTheModeLetsEventsPass) {
  Action action = shift("tap", 1);
  const auto identity = make(action);
  taps.find(identity)->sourceModes = static_cast<RunLoop::ModeSet>(RunLoop::Mode::standard);
  runLoop.enterMode(RunLoop::Mode::eventTracking);
  taps.deliver(event);
  EXPECT_TRUE(log.empty());
  runLoop.leaveMode();
  taps.deliver(event);
  EXPECT_EQ(log.size(), 1U);
  taps.find(identity)->sourceModes = 0;
  taps.deliver(event);
  EXPECT_EQ(log.size(), 1U);
}

TEST_F(EventTapsTest, AListenOnlyTapCanNeitherChangeNorDropTheEvent) {
  Action action = [this](CGEventType, CGEventRef seen) -> CGEventRef {
    log.emplace_back("heard");
    seen->location.x = 99;
    return nullptr;
  };
  make(action, kCGTailAppendEventTap, mouseMovedMask, kCGEventTapOptionListenOnly);
  EXPECT_TRUE(taps.deliver(event));
  EXPECT_EQ(log.size(), 1U);
  EXPECT_EQ(event.location.x, 10);
}

TEST_F(EventTapsTest, ATapThatReturnsNoEventDropsIt) {
  Action swallow = [](CGEventType, CGEventRef) -> CGEventRef { return nullptr; };
  Action after = shift("after", 1);
  make(swallow);
  make(after);
  EXPECT_FALSE(taps.deliver(event));
  EXPECT_TRUE(log.empty());
}

TEST_F(EventTapsTest, ATapMayReturnAnotherEvent) {
  __CGEvent other{kCGEventMouseMoved, CGEventFlags{}, {1, 2}};
  Action replace = [&other](CGEventType, CGEventRef) { return &other; };
  make(replace);
  EXPECT_TRUE(taps.deliver(event));
  EXPECT_EQ(event.location.x, 1);
}

TEST_F(EventTapsTest, TheSystemDisablesATapBeforeItNotifiesIt) {
  std::vector<bool> enabledWhenNotified;
  std::uint64_t identity = 0;
  Action action = [&](CGEventType type, CGEventRef seen) {
    EXPECT_EQ(type, kCGEventTapDisabledByTimeout);
    enabledWhenNotified.push_back(taps.find(identity)->isEnabled);
    return seen;
  };
  identity = make(action);
  EXPECT_EQ(taps.disableAll(kCGEventTapDisabledByTimeout, {0, 0}), 1);
  EXPECT_EQ(enabledWhenNotified, (std::vector<bool>{false}));
  EXPECT_FALSE(taps.isAnyEnabled());
  EXPECT_EQ(taps.aliveCount(), 1U);
  EXPECT_EQ(taps.disableAll(kCGEventTapDisabledByTimeout, {0, 0}), 0);
  taps.deliver(event);
  EXPECT_EQ(enabledWhenNotified.size(), 1U);
}

TEST_F(EventTapsTest, ATapMayEndItselfInItsCallback) {
  std::uint64_t identity = 0;
  Action action = [&](CGEventType, CGEventRef seen) {
    log.emplace_back("once");
    taps.remove(identity);
    return seen;
  };
  Action after = shift("after", 1);
  identity = make(action);
  make(after);
  taps.deliver(event);
  taps.deliver(event);
  EXPECT_EQ(log, (Log{"once", "after", "after"}));
}

TEST_F(EventTapsTest, TapsCreatedDuringADeliveryReceiveTheNextEvent) {
  Action first = shift("first", 1);
  Action last = shift("last", 1);
  bool isMade = false;
  Action action = [&](CGEventType, CGEventRef seen) {
    log.emplace_back("maker");
    if (!isMade) {
      isMade = true;
      make(first, kCGHeadInsertEventTap);
      make(last, kCGTailAppendEventTap);
      EXPECT_EQ(taps.aliveCount(), 3U);
    }
    return seen;
  };
  make(action);
  taps.deliver(event);
  EXPECT_EQ(log, (Log{"maker"}));
  taps.deliver(event);
  EXPECT_EQ(log, (Log{"maker", "first", "maker", "last"}));
}

class Witness : public EventWitness {
 public:
  void willDeliver(const __CGEvent& event) override { wentIn.push_back(event.location); }
  void didDeliver(const __CGEvent& before, const __CGEvent& after, bool isKept) override {
    EXPECT_EQ(before.location.x, wentIn.back().x);
    cameOut.push_back(after.location);
    kept.push_back(isKept);
  }

  std::vector<CGPoint> wentIn;
  std::vector<CGPoint> cameOut;
  std::vector<bool> kept;
};

TEST_F(EventTapsTest, AWitnessSeesEventsBeforeAndAfterTheTaps) {
  Witness witness;
  taps.setWitness(&witness);
  taps.deliver(event);
  Action first = shift("first", 1);
  make(first);
  taps.deliver(event);
  Action swallow = [](CGEventType, CGEventRef) -> CGEventRef { return nullptr; };
  make(swallow);
  taps.deliver(event);
  taps.setWitness(nullptr);
  taps.deliver(event);
  ASSERT_EQ(witness.cameOut.size(), 3U);
  EXPECT_EQ(witness.cameOut[0].x, 10);
  EXPECT_EQ(witness.wentIn[1].x, 10);
  EXPECT_EQ(witness.cameOut[1].x, 11);
  EXPECT_EQ(witness.kept, (std::vector<bool>{true, true, false}));
}

}  // namespace
}  // namespace orvane::desk
