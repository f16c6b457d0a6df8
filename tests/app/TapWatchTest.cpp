// The watch over the event tap: no tap without its permission, and none that stays off.
#include <optional>

#include "Orvane/app/TapWatch.hpp"
#include "tests/support/ModelFixture.hpp"

namespace orvane {
namespace {

class TapWatchTest : public ModelFixture {
 protected:
  void watch() { tapWatch.emplace(*model); }
  [[nodiscard]] bool isTapEnabled() const {
    return model->isGuardRunning() && machine.eventTaps.isAnyEnabled();
  }

  /// The permission goes and the tap with it, but no notification comes.
  void takeThePermissionQuietly() {
    machine.permission.onChange(nullptr);
    machine.permission.setTrusted(false);
    machine.eventTaps.killAll();
  }

  std::optional<TapWatch> tapWatch;
};

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
  takeThePermissionQuietly();
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
  EXPECT_TRUE(model->guardService().snapshot().blocksAllDisplays);
}

TEST_F(TapWatchTest, ATargetUnpluggedWithoutThePermissionIsAwaited) {
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

TEST_F(TapWatchTest, AGuardWithdrawnWithoutThePermissionDoesNotComeBack) {
  launchPinned();
  watch();
  machine.permission.setTrusted(false);
  machine.advance(2);
  store("isOrvaneEnabled", false);
  machine.permission.setTrusted(true);
  machine.advance(2);
  EXPECT_FALSE(model->isGuardRunning());
}

TEST_F(TapWatchTest, ItLooksAtOnceWhenThePermissionsChange) {
  launchPinned();
  watch();
  machine.permission.setTrusted(false);
  EXPECT_FALSE(model->isGuardRunning()) << "before any task of the main queue";
  EXPECT_FALSE(model->hasAccessibilityPermission().value());
  EXPECT_EQ(stored("isOrvaneEnabled"), Value(true));
  machine.permission.setTrusted(true);
  EXPECT_TRUE(isTapEnabled());
}

TEST_F(TapWatchTest, WithoutTheNotificationTheClockFindsTheSame) {
  launchPinned();
  watch();
  takeThePermissionQuietly();
  machine.advance(0.999);
  EXPECT_TRUE(model->isGuardRunning());
  machine.advance(0.001);
  EXPECT_FALSE(model->isGuardRunning());
  machine.permission.setTrusted(true);
  machine.advance(TapWatch::intervalSeconds);
  EXPECT_TRUE(isTapEnabled());
}

TEST_F(TapWatchTest, ALockThatCouldNotBeRestoredAtLaunchComesWithThePermission) {
  store("isOrvaneEnabled", true);
  store("selectedDisplayID", "gone");
  machine.permission.setTrusted(false);
  launch();
  watch();
  machine.permission.setTrusted(true);
  EXPECT_FALSE(model->isGuardRunning()) << "its display is away";
  EXPECT_TRUE(model->guardService().snapshot().isObservingScreens);
  desk::Display display = desk::monitorAbove();
  display.uuid = "gone";
  desk::attach(machine, display);
  machine.runDue();
  EXPECT_TRUE(isTapEnabled());
}

TEST_F(TapWatchTest, ALockRevokedWhileItsDisplayWasAwayComesBack) {
  launchPinned();
  watch();
  desk::detach(machine, 1);
  machine.runDue();
  ASSERT_FALSE(model->isGuardRunning());
  machine.permission.setTrusted(false);
  desk::attach(machine, desk::laptop());
  machine.runDue();
  ASSERT_FALSE(model->isGuardRunning());
  machine.permission.setTrusted(true);
  EXPECT_TRUE(isTapEnabled());
}

TEST_F(TapWatchTest, ALockThatCouldNotBeRestoredForWantOfItsDisplayAloneIsNotStarted) {
  store("isOrvaneEnabled", true);
  store("selectedDisplayID", "gone");
  launch();
  watch();
  desk::Display display = desk::monitorAbove();
  display.uuid = "gone";
  desk::attach(machine, display);
  machine.advance(5);
  EXPECT_FALSE(model->isGuardRunning()) << "it waits for the next launch";
  EXPECT_EQ(model->status(), OrvaneStatus::unlocked);
}

TEST_F(TapWatchTest, ATapThatTheSystemDisabledWithoutAWordIsEnabled) {
  launchPinned();
  watch();
  machine.eventTaps.disableAllSilently(false);
  machine.advance(TapWatch::intervalSeconds);
  EXPECT_TRUE(isTapEnabled());
  EXPECT_TRUE(hasTap(1)) << "the same tap";
}

TEST_F(TapWatchTest, ATapThatStaysDisabledIsReplacedAtTheNextLook) {
  launchPinned();
  watch();
  machine.eventTaps.disableAllSilently(true);
  machine.advance(TapWatch::intervalSeconds);
  ASSERT_TRUE(hasTap(1));
  EXPECT_FALSE(isTapEnabled());
  machine.advance(TapWatch::intervalSeconds);
  EXPECT_FALSE(hasTap(1));
  EXPECT_TRUE(isTapEnabled());
}

TEST_F(TapWatchTest, OneDisabledNowAndThenIsEnabledEachTime) {
  launchPinned();
  watch();
  for (int count = 0; count < 5; ++count) {
    machine.eventTaps.disableAllSilently(false);
    machine.advance(2 * TapWatch::intervalSeconds);
  }
  EXPECT_TRUE(hasTap(1));
  EXPECT_TRUE(isTapEnabled());
}

/// As after the application was removed from the list of permissions.
class DoubtedPermissionTest : public TapWatchTest {
 protected:
  DoubtedPermissionTest() {
    launchPinned();
    watch();
    machine.eventTaps.setRefusesCreation(true);
    machine.eventTaps.disableAllSilently(true);
    machine.advance(2 * TapWatch::intervalSeconds);
  }
};

TEST_F(DoubtedPermissionTest, CountsAsMissing) {
  EXPECT_FALSE(model->isGuardRunning());
  EXPECT_EQ(machine.eventTaps.aliveCount(), 0U);
  EXPECT_EQ(model->status(), OrvaneStatus::permissionRequired);
  EXPECT_EQ(stored("isOrvaneEnabled"), Value(true));
  machine.eventTaps.setRefusesCreation(false);
  model->refreshDisplays();
  machine.advance(60);
  EXPECT_EQ(model->status(), OrvaneStatus::permissionRequired);
  EXPECT_FALSE(model->isGuardRunning());
}

TEST_F(DoubtedPermissionTest, EndsWithTheNextChangeOfThePermissions) {
  machine.eventTaps.setRefusesCreation(false);
  machine.observers.post(appkit::NotificationName::accessibilityPermissionsDidChange);
  EXPECT_TRUE(isTapEnabled());
  EXPECT_EQ(model->status(), OrvaneStatus::locked);
}

TEST_F(DoubtedPermissionTest, StaysWhenTheChangeWasAnotherApplications) {
  machine.observers.post(appkit::NotificationName::accessibilityPermissionsDidChange);
  EXPECT_EQ(model->status(), OrvaneStatus::permissionRequired);
}

TEST_F(DoubtedPermissionTest, EndsWhenThePermissionReallyWentAndCame) {
  machine.eventTaps.setRefusesCreation(false);
  machine.permission.onChange(nullptr);
  machine.permission.setTrusted(false);
  machine.advance(1);
  machine.permission.setTrusted(true);
  machine.advance(1);
  EXPECT_EQ(model->status(), OrvaneStatus::locked);
}

TEST_F(DoubtedPermissionTest, EndsWhenTheUserAsksForTheGuard) {
  machine.eventTaps.setRefusesCreation(false);
  model->toggleSelectedDisplayLock();
  EXPECT_EQ(model->status(), OrvaneStatus::locked);
}

TEST_F(DoubtedPermissionTest, EndsWithThePermissionsPageAndTheGuardComesBack) {
  machine.eventTaps.setRefusesCreation(false);
  model->openAccessibilitySettings();
  EXPECT_TRUE(model->hasAccessibilityPermission().value());
  machine.advance(1);
  EXPECT_EQ(model->status(), OrvaneStatus::locked);
}

TEST_F(DoubtedPermissionTest, ReturnsWhenTheTapIsRefusedOnceMore) {
  model->toggleSelectedDisplayLock();
  EXPECT_EQ(model->status(), OrvaneStatus::unlocked);
  machine.advance(1);
  EXPECT_EQ(model->status(), OrvaneStatus::permissionRequired);
}

TEST_F(DoubtedPermissionTest, IsNotEndedByAChangeOfTheDisplays) {
  machine.eventTaps.setRefusesCreation(false);
  desk::attach(machine, desk::monitorAbove());
  machine.advance(5);
  EXPECT_FALSE(model->isGuardRunning());
  EXPECT_EQ(model->status(), OrvaneStatus::permissionRequired);
}

TEST_F(DoubtedPermissionTest, EndsWithTheNextLaunch) {
  machine.eventTaps.setRefusesCreation(false);
  tapWatch.reset();
  relaunch();
  EXPECT_EQ(model->status(), OrvaneStatus::locked);
}

TEST_F(TapWatchTest, ATapThatKeepsDyingIsGivenUp) {
  launchPinned();
  watch();
  for (int count = 0; count < 5; ++count) {
    EXPECT_TRUE(model->isGuardRunning());
    machine.eventTaps.disableAllSilently(true);
    machine.advance(2 * TapWatch::intervalSeconds);
  }
  EXPECT_FALSE(model->isGuardRunning());
  EXPECT_TRUE(model->hasAccessibilityPermission().value());
}

TEST_F(TapWatchTest, ATapRefusedToTheUserIsNoDoubt) {
  launch();
  watch();
  machine.eventTaps.setRefusesCreation(true);
  model->toggleSelectedDisplayLock();
  machine.advance(5);
  EXPECT_EQ(model->status(), OrvaneStatus::unlocked);
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
  machine.advance(1);
  EXPECT_FALSE(model->isGuardRunning()) << "the look finishes what the main queue cannot";
  machine.runLoop.releaseMainQueue();
  machine.runLoop.leaveMode();
  machine.advance(5);
  EXPECT_FALSE(model->isGuardRunning());
}

TEST_F(TapWatchTest, NothingIsLeftWhenTheWatchEnds) {
  launchPinned();
  watch();
  tapWatch.reset();
  machine.permission.setTrusted(false);
  machine.advance(3);
  EXPECT_TRUE(model->isGuardRunning());
}

}  // namespace
}  // namespace orvane
