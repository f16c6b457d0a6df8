// What the application costs while nothing happens.
#include "tests/app/AppFixture.hpp"

namespace orvane {
namespace {

constexpr std::int64_t secondsPerHour = 3600;

class EnergyTest : public AppFixture {
 protected:
  struct Cost {
    std::int64_t timerFires;
    std::int64_t tasks;
    long long changesOnScreen;
    bool operator==(const Cost&) const = default;
  };

  /// What one hour costs in which nobody touches anything.
  Cost idleHour() {
    // What was begun comes to an end first.
    machine.advance(5);
    const Cost before = now();
    machine.advance(static_cast<double>(secondsPerHour));
    const Cost after = now();
    return {after.timerFires - before.timerFires, after.tasks - before.tasks,
            after.changesOnScreen - before.changesOnScreen};
  }

 private:
  [[nodiscard]] Cost now() {
    return {machine.runLoop.timerFireCount(), machine.runLoop.taskCount(),
            server().updates.changeCount()};
  }
};

TEST_F(EnergyTest, UnlockedItWakesOnceASecondAndDrawsNothing) {
  begin();
  EXPECT_EQ(idleHour(), (Cost{secondsPerHour, 0, 0}));
}

TEST_F(EnergyTest, LockedItCostsNothingMore) {
  store("isOrvaneEnabled", true);
  begin();
  ASSERT_TRUE(model().isGuardRunning());
  EXPECT_EQ(idleHour(), (Cost{secondsPerHour, 0, 0}));
}

TEST_F(EnergyTest, AMenuThatWasOpenLeavesNothingBehind) {
  begin();
  ASSERT_TRUE(openMenu());
  moveTo(middleOf("Quit"));
  ASSERT_TRUE(press("Pin Dock"));
  server().menus.close();
  EXPECT_EQ(idleHour(), (Cost{secondsPerHour, 0, 0}));
}

TEST_F(EnergyTest, WindowsThatWereOpenLeaveNothingBehind) {
  begin();
  ASSERT_TRUE(openMenu());
  ASSERT_TRUE(press("Settings"));
  machine.advance(2);
  server().close(desk::Surfaces(server()).window("main"));
  EXPECT_EQ(idleHour(), (Cost{secondsPerHour, 0, 0}));
}

TEST_F(EnergyTest, AnOpenPanelAddsItsOwnTimerAndDrawsNothing) {
  begin();
  application.reopen();
  EXPECT_EQ(idleHour(), (Cost{2 * secondsPerHour, 0, 0}));
}

}  // namespace
}  // namespace orvane
