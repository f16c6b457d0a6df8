// The watch over the event tap: no tap without its permission, and none that stays off.
#include <optional>

#include "Orvane/model/TapWatch.hpp"
#include "tests/support/ModelFixture.hpp"

namespace orvane {
namespace {

class TapWatchTest : public ModelFixture {
 protected:
  void watch() {
    tapWatch.emplace([this]() -> OrvaneModel& { return *model; });
  }
  [[nodiscard]] bool isTapEnabled() const {
    return model->isGuardRunning() && CGEventTapIsEnabled(model->guardService().eventTap());
  }

  std::optional<TapWatch> tapWatch;
};

TEST_F(TapWatchTest, ATapIsTakenDownWithinASecondOfItsPermission) {
  launchPinned();
  watch();
  machine.permission.setTrusted(false);
  machine.advance(TapWatch::intervalSeconds);
  EXPECT_FALSE(model->isGuardRunning());
  EXPECT_EQ(machine.eventTaps.aliveCount(), 0U);
}

TEST_F(TapWatchTest, TheStatusSaysThatThePermissionIsMissingThoughNoPanelIsOpen) {
  launchPinned();
  watch();
  machine.permission.setTrusted(false);
  machine.advance(TapWatch::intervalSeconds);
  EXPECT_EQ(model->status(), OrvaneStatus::permissionRequired);
  machine.permission.setTrusted(true);
  machine.advance(TapWatch::intervalSeconds);
  EXPECT_EQ(model->status(), OrvaneStatus::locked);
}

TEST_F(TapWatchTest, TheTapGoesEvenWhileTheMainQueueStandsStill) {
  launchPinned();
  watch();
  machine.runLoop.enterMode(desk::RunLoop::Mode::modalPanel);
  machine.runLoop.holdMainQueue();
  machine.permission.setTrusted(false);
  machine.advance(TapWatch::intervalSeconds);
  EXPECT_FALSE(model->isGuardRunning());
  machine.runLoop.releaseMainQueue();
  machine.runLoop.leaveMode();
}

TEST_F(TapWatchTest, AnEndedUnlockIsReportedWhenTheTapIsTakenDown) {
  launchPinned();
  watch();
  moveHolding(kCGEventFlagMaskAlternate);
  ASSERT_TRUE(model->isTemporarilyUnlocked().value());
  machine.permission.setTrusted(false);
  machine.advance(TapWatch::intervalSeconds);
  EXPECT_FALSE(model->isTemporarilyUnlocked().value());
}

TEST_F(TapWatchTest, TheGuardThatItStoppedComesBackWithThePermission) {
  launchPreventing();
  watch();
  machine.permission.setTrusted(false);
  machine.advance(2);
  EXPECT_EQ(stored("isOrvaneEnabled"), Value(true)) << "the wish is the user's";
  machine.permission.setTrusted(true);
  machine.advance(TapWatch::intervalSeconds);
  EXPECT_TRUE(isTapEnabled());
  EXPECT_TRUE(model->guardService().blocksAllDisplays());
}

TEST_F(TapWatchTest, ATargetThatWentMeanwhileIsWaitedFor) {
  launchPinned();
  watch();
  machine.permission.setTrusted(false);
  machine.advance(2);
  desk::detach(machine, 1);
  machine.permission.setTrusted(true);
  machine.advance(2);
  ASSERT_FALSE(model->isGuardRunning());
  desk::attach(machine, desk::laptop());
  machine.runDue();
  EXPECT_TRUE(isTapEnabled());
}

TEST_F(TapWatchTest, AGuardThatNobodyWantedDoesNotComeBack) {
  launch();
  watch();
  machine.permission.setTrusted(false);
  machine.advance(2);
  machine.permission.setTrusted(true);
  machine.advance(2);
  EXPECT_FALSE(model->isGuardRunning());
}

TEST_F(TapWatchTest, AGuardThatTheUserStoppedMeanwhileDoesNotComeBack) {
  launchPinned();
  watch();
  machine.permission.setTrusted(false);
  machine.advance(2);
  store("isOrvaneEnabled", false);
  machine.permission.setTrusted(true);
  machine.advance(2);
  EXPECT_FALSE(model->isGuardRunning());
}

TEST_F(TapWatchTest, ATapThatTheSystemSwitchedOffWithoutAWordIsSwitchedOn) {
  launchPinned();
  watch();
  CGEventTapEnable(model->guardService().eventTap(), false);
  machine.advance(TapWatch::intervalSeconds);
  EXPECT_TRUE(isTapEnabled());
}

TEST_F(TapWatchTest, AGuardThatSwitchedItselfOffStaysOff) {
  launchPinned();
  watch();
  // The shut-off's clean-up waits for the main queue, which stands still; the watch goes on.
  machine.runLoop.enterMode(desk::RunLoop::Mode::modalPanel);
  machine.runLoop.holdMainQueue();
  for (int move = 0; move < 200; ++move) {
    machine.mouse.post({2500, 1079}, 0);
  }
  machine.advance(5);
  EXPECT_FALSE(isTapEnabled());
  machine.runLoop.releaseMainQueue();
  machine.runLoop.leaveMode();
  machine.advance(5);
  EXPECT_FALSE(model->isGuardRunning());
}

TEST_F(TapWatchTest, NothingIsLeftWhenTheWatchEnds) {
  launchPinned();
  watch();
  CGEventTapEnable(model->guardService().eventTap(), false);
  tapWatch.reset();
  machine.advance(3);
  EXPECT_FALSE(isTapEnabled());
}

}  // namespace
}  // namespace orvane
