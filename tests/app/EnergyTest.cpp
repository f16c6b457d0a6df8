// The application's wake-ups, tasks and redraws while nothing happens.
#include "tests/app/AppFixture.hpp"

namespace orvane {
namespace {

constexpr std::int64_t secondsPerHour = 3600;

class EnergyTest : public AppFixture {
 protected:
  struct Cost {
    std::int64_t wakeUps;
    std::int64_t tasks;
    long long changesOnScreen;
    bool operator==(const Cost&) const = default;
  };
  /// One wake-up a second, and nothing is drawn.
  static constexpr Cost timerOnly{secondsPerHour, 0, 0};

  /// The cost of one hour without input.
  Cost idleHour() {
    // Pending work finishes first.
    machine.advance(5);
    const Cost before = now();
    machine.advance(static_cast<double>(secondsPerHour));
    const Cost after = now();
    return {after.wakeUps - before.wakeUps, after.tasks - before.tasks,
            after.changesOnScreen - before.changesOnScreen};
  }

  [[nodiscard]] Cost now() {
    return {machine.runLoop.wakeUpCount(), machine.runLoop.taskCount(),
            server().updates.changeCount()};
  }
};

TEST_F(EnergyTest, AnIdleApplicationWakesOnceASecondAndDrawsNothing) {
  begin();
  EXPECT_EQ(idleHour(), timerOnly);
}

TEST_F(EnergyTest, ARunningGuardAClosedMenuAndClosedWindowsCostNoMore) {
  begin();
  ASSERT_TRUE(openMenu());
  moveTo(middleOf("Quit"));
  ASSERT_TRUE(press("Pin Dock"));
  ASSERT_TRUE(press("Settings"));
  machine.advance(2);
  EXPECT_EQ(hand.close("main"), std::nullopt);
  ASSERT_TRUE(model().isGuardRunning());
  EXPECT_EQ(idleHour(), timerOnly);
}

TEST_F(EnergyTest, OpenSettingsWithACaptionCostNoMore) {
  machine.loginItem.status = appkit::LoginItem::Status::requiresApproval;
  begin();
  machine.advance(0.61);
  ASSERT_TRUE(openMenu());
  ASSERT_TRUE(press("Settings"));
  EXPECT_EQ(idleHour(), timerOnly);
}

TEST_F(EnergyTest, BlockedMovementsDrawNothingInAnOpenPanel) {
  begin();
  application.reopen();
  model().toggleSelectedDisplayLock();
  machine.advance(5);
  const long long before = server().updates.changeCount();
  for (int second = 0; second < 10; ++second) {
    machine.mouse.post({2800, 1075}, 0);
    machine.advance(1);
  }
  EXPECT_EQ(application.snapshot().guard.blockedCount, 10);
  EXPECT_EQ(server().updates.changeCount() - before, 0);
}

}  // namespace
}  // namespace orvane
