// The run loop: nesting, modes, the held main queue, timers, and the end of a process.
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "desk/machine/RunLoop.hpp"

namespace orvane::desk {
namespace {

constexpr std::int64_t millisecond = 1'000'000;
constexpr std::int64_t second = 1000 * millisecond;
constexpr auto standardMode = static_cast<RunLoop::ModeSet>(RunLoop::Mode::standard);

class RunLoopTest : public testing::Test {
 protected:
  /// Logs `name` with the time in milliseconds.
  RunLoop::Task note(std::string name) {
    return [this, name = std::move(name)] {
      log.push_back(name + "@" + std::to_string(clock.now() / millisecond));
    };
  }

  Clock clock;
  Faults faults;
  RunLoop runLoop{clock, faults};
  std::vector<std::string> log;
  using Log = std::vector<std::string>;
};

TEST_F(RunLoopTest, ATaskNeverRunsWithinAnother) {
  runLoop.async([this] {
    runLoop.async(note("inner"));
    runLoop.runDue();
    runLoop.advance(second);
    note("outer")();
  });
  runLoop.runDue();
  EXPECT_EQ(log, (Log{"outer@0", "inner@0"}));
  EXPECT_EQ(clock.now(), 0);
}

TEST_F(RunLoopTest, AZeroOrNegativeDelayIsServedAtOnce) {
  runLoop.asyncAfter(-5, note("a"));
  runLoop.asyncAfter(0, note("b"));
  runLoop.runDue();
  EXPECT_EQ(log, (Log{"a@0", "b@0"}));
}

TEST_F(RunLoopTest, ATaskThatIsNeverDueDoesNotMoveTime) {
  runLoop.advance(second);
  runLoop.asyncAfter(std::numeric_limits<std::int64_t>::max(), note("never"));
  runLoop.advance(second);
  EXPECT_TRUE(log.empty());
  EXPECT_EQ(clock.now(), 2 * second);
  EXPECT_EQ(runLoop.nextDue(), std::nullopt);
}

TEST_F(RunLoopTest, ModesNest) {
  runLoop.enterMode(RunLoop::Mode::modalPanel);
  runLoop.enterMode(RunLoop::Mode::eventTracking);
  EXPECT_EQ(runLoop.mode(), RunLoop::Mode::eventTracking);
  runLoop.leaveMode();
  EXPECT_EQ(runLoop.mode(), RunLoop::Mode::modalPanel);
  runLoop.leaveMode();
  runLoop.leaveMode();
  EXPECT_EQ(runLoop.mode(), RunLoop::Mode::standard);
}

TEST_F(RunLoopTest, AHeldMainQueueDeliversNothingWhileTimersGoOn) {
  const auto timer = runLoop.addTimer(second, RunLoop::commonModes, note("timer"));
  runLoop.async([this] {
    note("opens the session")();
    runLoop.holdMainQueue();
  });
  runLoop.async(note("waiting"));
  runLoop.asyncAfter(500 * millisecond, note("delayed"));
  runLoop.advance(second);
  EXPECT_EQ(log, (Log{"opens the session@0", "timer@1000"}));
  runLoop.releaseMainQueue();
  runLoop.runDue();
  EXPECT_EQ(log, (Log{"opens the session@0", "timer@1000", "waiting@1000", "delayed@1000"}));
}

TEST_F(RunLoopTest, AnInvalidatedTimerStopsAndReleasesItsCallback) {
  auto held = std::make_shared<int>(0);
  const auto timer = runLoop.addTimer(second, RunLoop::commonModes, [held] { ++*held; });
  runLoop.advance(second);
  runLoop.invalidateTimer(timer);
  runLoop.invalidateTimer(timer);
  runLoop.advance(5 * second);
  EXPECT_EQ(*held, 1);
  EXPECT_EQ(held.use_count(), 1);
  EXPECT_EQ(runLoop.timerCount(), 0U);
}

TEST_F(RunLoopTest, ATimerMayInvalidateItselfInItsTick) {
  std::shared_ptr<RunLoopTimer> timer;
  const auto held = std::make_shared<int>(0);
  timer = runLoop.addTimer(second, RunLoop::commonModes, [&, held] {
    runLoop.invalidateTimer(timer);
    // The callback is still running, so its captures must still exist.
    ++*held;
  });
  runLoop.advance(3 * second);
  EXPECT_EQ(*held, 1);
  EXPECT_EQ(held.use_count(), 1);
}

TEST_F(RunLoopTest, AnIntervalOfZeroBecomesATenthOfAMillisecond) {
  int ticks = 0;
  const auto timer = runLoop.addTimer(0, RunLoop::commonModes, [&] { ++ticks; });
  runLoop.advance(millisecond);
  EXPECT_EQ(ticks, 10);
}

TEST_F(RunLoopTest, CountsAWakeUpForEachInstantWithSomethingToDo) {
  const auto timer = runLoop.addTimer(second, RunLoop::commonModes, [] {});
  runLoop.asyncAfter(2 * second, [] {});
  runLoop.advance(3 * second);
  EXPECT_EQ(runLoop.taskCount(), 1);
  EXPECT_EQ(runLoop.timerFireCount(), 3);
  EXPECT_EQ(runLoop.wakeUpCount(), 3);
}

TEST_F(RunLoopTest, CoalescedTimersFireTogetherInTheOrderOfCreation) {
  const auto first = runLoop.addCoalescedTimer(second, RunLoop::commonModes, note("first"));
  runLoop.advance(300 * millisecond);
  const auto joined = runLoop.addCoalescedTimer(second, standardMode, note("joined"));
  const auto longer = runLoop.addCoalescedTimer(2 * second, standardMode, note("longer"));
  const auto apart = runLoop.addTimer(second, standardMode, note("apart"));
  runLoop.advance(2 * second);
  EXPECT_EQ(log, (Log{"first@1000", "joined@1000", "apart@1300", "first@2000", "joined@2000",
                      "longer@2300", "apart@2300"}));
  EXPECT_EQ(runLoop.wakeUpCount(), 4);
}

TEST_F(RunLoopTest, SweepingDestroysPendingTasksWithoutRunningThem) {
  const auto held = std::make_shared<int>(0);
  const auto timer = runLoop.addTimer(second, RunLoop::commonModes, [held] { ++*held; });
  runLoop.asyncAfter(second, [held] { ++*held; });
  runLoop.enterMode(RunLoop::Mode::modalPanel);
  runLoop.holdMainQueue();
  runLoop.sweep();
  EXPECT_EQ(held.use_count(), 1);
  EXPECT_FALSE(timer->isValid);
  EXPECT_EQ(runLoop.mode(), RunLoop::Mode::standard);
  EXPECT_FALSE(runLoop.isMainQueueHeld());
  runLoop.advance(5 * second);
  EXPECT_EQ(*held, 0);
}

TEST_F(RunLoopTest, SweepingFromWithinATickKeepsTheRunningCallback) {
  const auto held = std::make_shared<int>(0);
  const auto timer = runLoop.addTimer(second, RunLoop::commonModes, [this, held] {
    runLoop.sweep();
    ++*held;
  });
  runLoop.advance(5 * second);
  EXPECT_EQ(*held, 1);
  EXPECT_EQ(held.use_count(), 1);
}

TEST_F(RunLoopTest, ATaskThatIsNotAcceptedIsDestroyed) {
  const auto held = std::make_shared<int>(0);
  runLoop.setAcceptsTasks(false);
  runLoop.async([held] { ++*held; });
  const auto timer = runLoop.addTimer(second, RunLoop::commonModes, [held] { ++*held; });
  EXPECT_EQ(held.use_count(), 1);
  EXPECT_FALSE(timer->isValid);
  runLoop.advance(2 * second);
  EXPECT_EQ(*held, 0);
}

TEST_F(RunLoopTest, EndlessTasksAreAFaultAndNotAHang) {
  std::function<void()> again = [&] { runLoop.async(again); };
  runLoop.async(again);
  runLoop.runDue();
  EXPECT_EQ(faults.count(), 1U);
  runLoop.sweep();
}

TEST_F(RunLoopTest, ASourceIsInTheModesItWasAddedToAndNotRemovedFrom) {
  const int source = 0;
  EXPECT_EQ(runLoop.modesOf(&source), 0);
  EXPECT_TRUE(runLoop.addSource(&source, standardMode));
  EXPECT_FALSE(runLoop.addSource(&source, RunLoop::commonModes));
  EXPECT_EQ(runLoop.modesOf(&source), RunLoop::commonModes);
  EXPECT_FALSE(runLoop.removeSource(&source, standardMode));
  EXPECT_TRUE(runLoop.removeSource(&source, RunLoop::commonModes));
  EXPECT_FALSE(runLoop.removeSource(&source, RunLoop::commonModes));
  EXPECT_TRUE(runLoop.sources().empty());
}

TEST_F(RunLoopTest, AfterCurrentComesBeforeDueTasksInEveryModeAndWhileTheQueueIsHeld) {
  std::string order;
  runLoop.async([&] {
    runLoop.async([&] { order += "task "; });
    runLoop.enterMode(RunLoop::Mode::modalPanel);
    runLoop.holdMainQueue();
    runLoop.afterCurrent([&] {
      order += "follower ";
      runLoop.releaseMainQueue();
      runLoop.leaveMode();
    });
    order += "first ";
  });
  const std::int64_t before = runLoop.taskCount();
  runLoop.runDue();
  EXPECT_EQ(order, "first follower task ");
  EXPECT_EQ(runLoop.taskCount() - before, 2);
}

}  // namespace
}  // namespace orvane::desk
