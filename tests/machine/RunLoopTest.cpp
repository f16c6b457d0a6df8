// The run loop: nesting, modes, the held main queue, timers, and the end of a process; its order
// for random requests, compared with a plain list that is searched at every time step.
#include <algorithm>
#include <memory>
#include <ostream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

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

struct Step {
  enum class Kind {
    task,
    standardTimer,
    commonTimer,
    advance,
    enterMode,
    leaveMode,
    hold,
    release
  };
  Kind kind;
  /// The delay, the interval or the elapsed time.
  int amount;
  /// When not negative, the task posts another one with this delay.
  int childDelay;
};

std::ostream& operator<<(std::ostream& out, const Step& step) {
  constexpr const char* names[] = {"task",  "standardTimer", "commonTimer", "advance",
                                   "enter", "leave",         "hold",        "release"};
  return out << names[static_cast<int>(step.kind)] << " " << step.amount << " " << step.childDelay;
}

using Record = std::pair<std::int64_t, int>;

/// The simplest possible model of the run loop: time advances unit by unit, and each time the whole
/// list is searched for the item that has waited longest.
class ListModel {
 public:
  std::vector<Record> records;

  void add(int name, bool isTask, bool isStandard, std::int64_t due, int interval, int child) {
    items_.push_back({name, isTask, isStandard, due, arrivals_++, interval, child});
  }

  void perform(const Step& step, int name) {
    switch (step.kind) {
      case Step::Kind::task:
        add(name, true, false, now_ + step.amount, 0, step.childDelay);
        break;
      case Step::Kind::standardTimer:
      case Step::Kind::commonTimer:
        add(name, false, step.kind == Step::Kind::standardTimer, now_ + step.amount + 1,
            step.amount + 1, -1);
        break;
      case Step::Kind::advance:
        rest();
        for (int unit = 0; unit < step.amount; ++unit) {
          ++now_;
          rest();
        }
        break;
      case Step::Kind::enterMode:
        ++modes_;
        break;
      case Step::Kind::leaveMode:
        modes_ = modes_ > 0 ? modes_ - 1 : 0;
        break;
      case Step::Kind::hold:
        ++holds_;
        break;
      case Step::Kind::release:
        holds_ = holds_ > 0 ? holds_ - 1 : 0;
        break;
    }
    rest();
  }

 private:
  struct Item {
    int name;
    bool isTask;
    bool isStandard;
    std::int64_t due;
    int arrival;
    int interval;
    int child;
  };

  [[nodiscard]] bool isServed(const Item& item) const {
    return item.due <= now_ && !(item.isTask && holds_ > 0) && !(item.isStandard && modes_ > 0);
  }

  void rest() {
    while (true) {
      const auto first = std::ranges::min_element(items_, {}, [this](const Item& item) {
        return std::tuple(!isServed(item), item.due, item.arrival);
      });
      if (first == items_.end() || !isServed(*first)) {
        return;
      }
      const Item served = *first;
      records.emplace_back(now_, served.name);
      if (served.isTask) {
        items_.erase(first);
        if (served.child >= 0) {
          add(served.name + 1000, true, false, now_ + served.child, 0, -1);
        }
      } else {
        while (first->due <= now_) {
          first->due += served.interval;
        }
        first->arrival = arrivals_++;
      }
    }
  }

  std::vector<Item> items_;
  std::int64_t now_ = 0;
  int arrivals_ = 0;
  int modes_ = 0;
  int holds_ = 0;
};

class RunLoopModel {
 public:
  std::vector<Record> records;

  void perform(const Step& step, int name) {
    switch (step.kind) {
      case Step::Kind::task:
        runLoop_.asyncAfter(step.amount, [this, name, child = step.childDelay] {
          records.emplace_back(clock_.now(), name);
          if (child >= 0) {
            runLoop_.asyncAfter(child,
                                [this, name] { records.emplace_back(clock_.now(), name + 1000); });
          }
        });
        break;
      case Step::Kind::standardTimer:
      case Step::Kind::commonTimer:
        runLoop_.addTimer(step.amount + 1,
                          step.kind == Step::Kind::commonTimer
                              ? RunLoop::commonModes
                              : static_cast<RunLoop::ModeSet>(RunLoop::Mode::standard),
                          [this, name] { records.emplace_back(clock_.now(), name); });
        break;
      case Step::Kind::advance:
        runLoop_.advance(step.amount);
        break;
      case Step::Kind::enterMode:
        runLoop_.enterMode(RunLoop::Mode::eventTracking);
        break;
      case Step::Kind::leaveMode:
        runLoop_.leaveMode();
        break;
      case Step::Kind::hold:
        runLoop_.holdMainQueue();
        break;
      case Step::Kind::release:
        runLoop_.releaseMainQueue();
        break;
    }
    runLoop_.runDue();
  }

 private:
  Clock clock_;
  Faults faults_;
  RunLoop runLoop_{clock_, faults_};
};

rc::Gen<Step> genStep() {
  using Kind = Step::Kind;
  return rc::gen::construct<Step>(
      rc::gen::element(Kind::task, Kind::task, Kind::standardTimer, Kind::commonTimer,
                       Kind::advance, Kind::advance, Kind::advance, Kind::enterMode,
                       Kind::leaveMode, Kind::hold, Kind::release),
      rc::gen::inRange(0, 7), rc::gen::inRange(-2, 4));
}

RC_GTEST_PROP(RunLoopProperty, ServesTasksAndTimersInTheOrderOfTheListModel, ()) {
  const auto steps = *rc::gen::container<std::vector<Step>>(genStep());
  ListModel expected;
  RunLoopModel actual;
  for (std::size_t index = 0; index < steps.size(); ++index) {
    expected.perform(steps[index], static_cast<int>(index));
    actual.perform(steps[index], static_cast<int>(index));
  }
  RC_ASSERT(actual.records == expected.records);
}

}  // namespace
}  // namespace orvane::desk
