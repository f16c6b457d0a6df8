// Contract tests for timers, the main queue, and the media and calendar clocks.
#include <optional>
#include <string>
#include <utility>

#include "Orvane/platform/appkit/MainQueue.hpp"
#include "Orvane/platform/appkit/Timer.hpp"
#include "tests/contract/Arrange.hpp"
#include "tests/contract/ContractFixture.hpp"

namespace orvane {
namespace {

using appkit::RunLoopMode;
using appkit::Timer;

class TimerContract : public ContractFixture {
 protected:
  [[nodiscard]] Timer counting(double interval, RunLoopMode mode = RunLoopMode::standard) {
    return Timer::repeating(interval, mode, [this] { ++ticks; });
  }

  int ticks = 0;
};

TEST_F(TimerContract, FiresAfterEachInterval) {
  const Timer timer = counting(0.1);
  EXPECT_TRUE(timer.isValid());
  letTimePass(0.05);
  EXPECT_EQ(ticks, 0);
  letTimePass(0.1);
  EXPECT_EQ(ticks, 1);
  letTimePass(0.1);
  EXPECT_EQ(ticks, 2);
}

TEST_F(TimerContract, AnInvalidatedOrDestroyedTimerFiresNoMore) {
  Timer timer = counting(0.05);
  timer.invalidate();
  timer.invalidate();
  EXPECT_FALSE(timer.isValid());
  { const Timer destroyed = counting(0.05); }
  letTimePass(0.2);
  EXPECT_EQ(ticks, 0);
}

TEST_F(TimerContract, AMovedTimerStillFiresAndReplacesTheOneThatItIsAssignedTo) {
  int others = 0;
  Timer timer = counting(0.05);
  timer = Timer::repeating(0.05, RunLoopMode::standard, [&others] { ++others; });
  const Timer moved = std::move(timer);
  letTimePass(0.08);
  EXPECT_EQ(ticks, 0);
  EXPECT_EQ(others, 1);
}

TEST_F(TimerContract, ATickMayEndOrDestroyItsOwnTimer) {
  for (const bool isDestroyed : {false, true}) {
    ticks = 0;
    std::optional<Timer> timer;
    timer = Timer::repeating(0.05, RunLoopMode::standard, [this, &timer, isDestroyed] {
      if (isDestroyed) {
        timer.reset();
      } else {
        timer->invalidate();
      }
      ++ticks;
    });
    letTimePass(0.2);
    EXPECT_EQ(ticks, 1);
  }
}

TEST_F(TimerContract, WhileAMenuIsOpenOnlyCommonTimersFire) {
  int commonTicks = 0;
  const Timer standard = counting(0.1);
  const Timer common =
      Timer::repeating(0.1, RunLoopMode::common, [&commonTicks] { ++commonTicks; });
  ORVANE_ARRANGE(letTimePassWithMenuOpen(0.35));
  EXPECT_EQ(commonTicks, 3);
  EXPECT_EQ(ticks, 0);
  letTimePass(0.01);
  EXPECT_EQ(ticks, 1);
}

using appkit::MainQueue;
using MainQueueContract = ContractFixture;

TEST_F(MainQueueContract, TasksRunInOrderAndNeverNested) {
  std::string log;
  MainQueue::async([&log] {
    log += "a(";
    MainQueue::async([&log] { log += "c"; });
    log += ")";
  });
  MainQueue::async([&log] { log += "b"; });
  letTimePass(0.05);
  EXPECT_EQ(log, "a()bc");
}

TEST_F(MainQueueContract, ADelayedTaskDoesNotRunEarly) {
  std::string log;
  MainQueue::asyncAfter(0.2, [&log] { log += "late"; });
  MainQueue::asyncAfter(0.05, [&log] { log += "early "; });
  letTimePass(0.1);
  EXPECT_EQ(log, "early ");
  letTimePass(0.2);
  EXPECT_EQ(log, "early late");
}

using ClocksContract = ContractFixture;

TEST_F(ClocksContract, TheMediaClockAdvancesAndNeverGoesBack) {
  const double before = CACurrentMediaTime();
  letTimePass(0.05);
  const double after = CACurrentMediaTime();
  EXPECT_GE(after - before, 0.049);
  EXPECT_GE(CACurrentMediaTime(), after);
}

TEST_F(ClocksContract, TheCalendarClockCountsSecondsSinceTheYear2001) {
  // The years 2026 to 2200: a clock with another epoch or unit is far outside.
  const double before = CFAbsoluteTimeGetCurrent();
  EXPECT_GE(before, 788'918'400);
  EXPECT_LT(before, 6'280'000'000);
  letTimePass(0.05);
  EXPECT_GE(CFAbsoluteTimeGetCurrent() - before, 0.049);
}

}  // namespace
}  // namespace orvane
