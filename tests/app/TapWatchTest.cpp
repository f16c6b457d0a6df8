// The tap watch: no tap without the permission, and none that stays disabled.
#include <functional>
#include <optional>
#include <vector>

#include "Orvane/app/TapWatch.hpp"
#include "tests/support/ModelFixture.hpp"

namespace orvane {
namespace {

class TapWatchTest : public ModelFixture {
 protected:
  void watch() { tapWatch.emplace(*model); }
  void watchPinned() {
    launchPinned();
    watch();
  }
  [[nodiscard]] bool isTapEnabled() const {
    return model->isGuardRunning() && machine.eventTaps.isAnyEnabled();
  }

  /// Revokes the permission, and with it the tap, without a notification.
  void revokeSilently() {
    machine.permission.onChange(nullptr);
    machine.permission.setTrusted(false);
    machine.eventTaps.killAll();
  }

  /// Presses against the monitor's Dock edge until the guard shuts itself off.
  void letBlocksRunAway() {
    for (int move = 0; move < 200; ++move) {
      machine.mouse.post({2500, 1079}, 0);
    }
    machine.runDue();
  }

  std::optional<TapWatch> tapWatch;
};

TEST_F(TapWatchTest, TheTapIsRemovedEvenWhileTheMainQueueIsSuspended) {
  watchPinned();
  machine.runLoop.enterMode(desk::RunLoop::Mode::modalPanel);
  machine.runLoop.holdMainQueue();
  revokeSilently();
  machine.advance(TapWatch::intervalSeconds);
  EXPECT_FALSE(model->isGuardRunning());
  machine.runLoop.releaseMainQueue();
  machine.runLoop.leaveMode();
}

TEST_F(TapWatchTest, AStoppedGuardResumesWithThePermission) {
  launchPreventing();
  watch();
  machine.permission.setTrusted(false);
  machine.advance(2);
  EXPECT_EQ(stored("isOrvaneEnabled"), Value(true)) << "the user still wants it";
  machine.permission.setTrusted(true);
  machine.advance(TapWatch::intervalSeconds);
  EXPECT_TRUE(isTapEnabled());
  EXPECT_TRUE(model->guardService().snapshot().blocksAllDisplays);
}

TEST_F(TapWatchTest, ANotificationOfChangedPermissionsIsHandledAtOnce) {
  watchPinned();
  machine.permission.setTrusted(false);
  EXPECT_FALSE(model->isGuardRunning()) << "before any main-queue task";
  EXPECT_FALSE(model->hasAccessibilityPermission().value());
  EXPECT_EQ(stored("isOrvaneEnabled"), Value(true));
  machine.permission.setTrusted(true);
  EXPECT_TRUE(isTapEnabled());
}

TEST_F(TapWatchTest, WithoutANotificationTheTimerDetectsTheChange) {
  watchPinned();
  revokeSilently();
  machine.advance(0.999);
  EXPECT_TRUE(model->isGuardRunning());
  machine.advance(0.001);
  EXPECT_FALSE(model->isGuardRunning());
  machine.permission.setTrusted(true);
  machine.advance(TapWatch::intervalSeconds);
  EXPECT_TRUE(isTapEnabled());
}

TEST_F(TapWatchTest, ATapThatStaysDisabledIsReplacedAtTheNextCheck) {
  watchPinned();
  machine.eventTaps.disableAllSilently(true);
  machine.advance(TapWatch::intervalSeconds);
  ASSERT_TRUE(hasTap(1));
  EXPECT_FALSE(isTapEnabled());
  machine.advance(TapWatch::intervalSeconds);
  EXPECT_FALSE(hasTap(1));
  EXPECT_TRUE(isTapEnabled());
}

TEST_F(TapWatchTest, ATapDisabledOccasionallyIsEnabledEachTime) {
  watchPinned();
  for (int count = 0; count < 5; ++count) {
    machine.eventTaps.disableAllSilently(false);
    machine.advance(2 * TapWatch::intervalSeconds);
  }
  EXPECT_TRUE(hasTap(1)) << "the same tap";
  EXPECT_TRUE(isTapEnabled());
}

/// The permission after the application was removed from the system's list.
class StalePermissionTest : public TapWatchTest {
 protected:
  StalePermissionTest() {
    watchPinned();
    becomeStale();
  }
  /// The system disables the tap for good and refuses another.
  void becomeStale() {
    machine.eventTaps.setRefusesCreation(true);
    machine.eventTaps.disableAllSilently(true);
    machine.advance(2 * TapWatch::intervalSeconds);
    ASSERT_EQ(model->status(), OrvaneStatus::permissionRequired);
  }
  void postPermissionChange() {
    machine.observers.post(appkit::NotificationName::accessibilityPermissionsDidChange);
  }
};

TEST_F(StalePermissionTest, CountsAsMissing) {
  EXPECT_FALSE(model->isGuardRunning());
  EXPECT_EQ(stored("isOrvaneEnabled"), Value(true));
  postPermissionChange();
  EXPECT_EQ(model->status(), OrvaneStatus::permissionRequired) << "the tap is still refused";
  machine.eventTaps.setRefusesCreation(false);
  desk::attach(machine, desk::monitorAbove());
  machine.advance(60);
  EXPECT_EQ(model->status(), OrvaneStatus::permissionRequired);
  EXPECT_FALSE(model->isGuardRunning());
}

TEST_F(StalePermissionTest, EndsWithAChangeOfThePermissionsOrAnActionOfTheUser) {
  const std::vector<std::function<void()>> actions{
      [this] { postPermissionChange(); },
      [this] { model->toggleSelectedDisplayLock(); },
      [this] { model->openAccessibilitySettings(); },
      [this] {
        // Revoked and granted without a notification.
        machine.permission.onChange(nullptr);
        machine.permission.setTrusted(false);
        machine.advance(TapWatch::intervalSeconds);
        machine.permission.setTrusted(true);
        machine.advance(TapWatch::intervalSeconds);
      },
  };
  for (const auto& action : actions) {
    machine.eventTaps.setRefusesCreation(false);
    action();
    EXPECT_TRUE(model->hasAccessibilityPermission().value());
    machine.advance(TapWatch::intervalSeconds);
    EXPECT_EQ(model->status(), OrvaneStatus::locked);
    becomeStale();
  }
}

TEST_F(StalePermissionTest, ReturnsWhenTheTapIsRefusedAgain) {
  model->toggleSelectedDisplayLock();
  EXPECT_EQ(model->status(), OrvaneStatus::unlocked);
  machine.advance(1);
  EXPECT_EQ(model->status(), OrvaneStatus::permissionRequired);
}

TEST_F(StalePermissionTest, AGuardThatTheUserStartsAndThatShutsItselfOffStaysOff) {
  machine.eventTaps.setRefusesCreation(false);
  model->toggleSelectedDisplayLock();
  ASSERT_TRUE(isTapEnabled());
  letBlocksRunAway();
  machine.advance(2 * TapWatch::intervalSeconds);
  EXPECT_FALSE(model->isGuardRunning());
}

TEST_F(TapWatchTest, AGuardThatShutItselfOffResumesWithThePermission) {
  watchPinned();
  letBlocksRunAway();
  ASSERT_FALSE(model->isGuardRunning());
  machine.permission.setTrusted(false);
  machine.permission.setTrusted(true);
  EXPECT_TRUE(isTapEnabled());
}

TEST_F(TapWatchTest, ATapThatIsRepeatedlyDisabledIsGivenUp) {
  watchPinned();
  for (int count = 0; count < 5; ++count) {
    EXPECT_TRUE(model->isGuardRunning());
    machine.eventTaps.disableAllSilently(true);
    machine.advance(2 * TapWatch::intervalSeconds);
  }
  EXPECT_FALSE(model->isGuardRunning());
  EXPECT_TRUE(model->hasAccessibilityPermission().value());
}

TEST_F(TapWatchTest, ATapRefusedAtAUserActionIsRequestedOnceMore) {
  launch();
  watch();
  for (const bool isRefusedAgain : {false, true}) {
    machine.eventTaps.setRefusesCreation(true);
    model->toggleSelectedDisplayLock();
    EXPECT_EQ(model->status(), OrvaneStatus::unlocked);
    machine.eventTaps.setRefusesCreation(isRefusedAgain);
    machine.advance(TapWatch::intervalSeconds);
    EXPECT_EQ(model->status(),
              isRefusedAgain ? OrvaneStatus::permissionRequired : OrvaneStatus::locked);
    model->suspendGuard();
  }
}

TEST_F(TapWatchTest, AGuardThatShutItselfOffStaysOff) {
  watchPinned();
  // The shut-off's clean-up waits for the main queue, which is suspended, unlike the watch.
  machine.runLoop.enterMode(desk::RunLoop::Mode::modalPanel);
  machine.runLoop.holdMainQueue();
  letBlocksRunAway();
  machine.advance(1);
  EXPECT_FALSE(model->isGuardRunning()) << "the check completes the shut-off";
  machine.runLoop.releaseMainQueue();
  machine.runLoop.leaveMode();
  machine.advance(5);
  EXPECT_FALSE(model->isGuardRunning());
}

TEST_F(TapWatchTest, ADisplayChangeBeforeTheShutOffDoesNotEndItWhenTheAlertCloses) {
  watchPinned();
  machine.runLoop.enterMode(desk::RunLoop::Mode::modalPanel);
  machine.runLoop.holdMainQueue();
  desk::attach(machine, desk::monitorAbove());
  letBlocksRunAway();
  machine.runLoop.releaseMainQueue();
  machine.runLoop.leaveMode();
  machine.advance(5);
  EXPECT_FALSE(model->isGuardRunning());
}

TEST_F(TapWatchTest, ADestroyedWatchDoesNothing) {
  watchPinned();
  tapWatch.reset();
  machine.permission.setTrusted(false);
  machine.advance(3);
  EXPECT_TRUE(model->isGuardRunning());
}

}  // namespace
}  // namespace orvane
