// OrvaneModel's actions on the guard: the two modes, the permission, changes of the displays, and
// the lock across launches.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/ModelFixture.hpp"

namespace orvane {
namespace {

class OrvaneModelLockTest : public ModelFixture {
 protected:
  [[nodiscard]] double now() const { return machine.clock.calendarTime(); }
  [[nodiscard]] bool isPinned() const {
    return model->isGuardRunning() && !model->hidesDockOnAllDisplays().value() &&
           !model->guardService().snapshot().blocksAllDisplays;
  }
  [[nodiscard]] bool isPreventing() const {
    return model->isGuardRunning() && model->hidesDockOnAllDisplays().value() &&
           model->guardService().snapshot().blocksAllDisplays;
  }
  [[nodiscard]] bool isStored(const char* key, bool value) const {
    return stored(key) == Value(value);
  }
  void holdTheModifier() { moveHolding(kCGEventFlagMaskAlternate); }
};

// The lock itself.

TEST_F(OrvaneModelLockTest, TheLockStartsTheGuardAndStoresTheSetting) {
  launch();
  machine.advance(5);
  EXPECT_EQ(writesOf([&] { model->toggleLock(); }),
            (Writes{{"selectedDisplayID", 1}, {"isOrvaneEnabled", 1}}));
  EXPECT_TRUE(isPinned());
  EXPECT_TRUE(isStored("isOrvaneEnabled", true));
  EXPECT_EQ(model->lastCheckedAt().value(), now());
  EXPECT_EQ(model->guardService().snapshot().lockedDisplayIdentifier, desk::uuidNamed('A'));
  EXPECT_EQ(model->guardService().snapshot().zones.size(), 1U);
}

TEST_F(OrvaneModelLockTest, TheLockStopsTheGuardAndStoresTheSetting) {
  launchPinned();
  holdTheModifier();
  machine.advance(5);
  EXPECT_EQ(writesOf([&] { model->toggleLock(); }), (Writes{{"isOrvaneEnabled", 1}}));
  EXPECT_FALSE(model->isGuardRunning());
  EXPECT_TRUE(isStored("isOrvaneEnabled", false));
  EXPECT_FALSE(model->isTemporarilyUnlocked().value());
  EXPECT_EQ(model->lastCheckedAt().value(), now());
  EXPECT_EQ(model->status(), OrvaneStatus::unlocked);
}

TEST_F(OrvaneModelLockTest, WithoutAnyDisplayPinningDoesNotStart) {
  desk::detach(machine, 1);
  desk::detach(machine, 2);
  launch();
  EXPECT_EQ(writesOf([&] { model->toggleLock(); }), (Writes{{"selectedDisplayID", 1}}));
  EXPECT_FALSE(model->guardService().snapshot().isObservingScreens);
}

TEST_F(OrvaneModelLockTest, TheTargetNeedNotBeAttachedToStart) {
  store("selectedDisplayID", desk::uuidNamed('C'));
  launch().toggleLock();
  EXPECT_FALSE(model->isGuardRunning());
  EXPECT_TRUE(model->guardService().snapshot().isObservingScreens) << "the guard waits for it";
  EXPECT_TRUE(isStored("isOrvaneEnabled", true));
  EXPECT_EQ(model->status(), OrvaneStatus::targetMissing);
  desk::attach(machine, desk::monitorAbove());
  machine.runDue();
  EXPECT_TRUE(isPinned());
}

TEST_F(OrvaneModelLockTest, PreventModeWithoutATargetPassesAnEmptyOne) {
  desk::detach(machine, 1);
  desk::detach(machine, 2);
  store("hidesDockOnAllDisplays", true);
  launch().toggleLock();
  EXPECT_EQ(model->guardService().snapshot().lockedDisplayIdentifier, "");
  EXPECT_TRUE(model->guardService().snapshot().blocksAllDisplays);
  EXPECT_TRUE(isStored("isOrvaneEnabled", true)) << "whatever the result of the start";
}

// The two switches.

TEST_F(OrvaneModelLockTest, TheSwitchesTurnEachModeOnAndOff) {
  launch().toggleSelectedDisplayLock();
  EXPECT_TRUE(isPinned());
  model->toggleSelectedDisplayLock();
  EXPECT_FALSE(model->isGuardRunning());
  EXPECT_TRUE(isStored("isOrvaneEnabled", false));
  model->toggleHideDockOnAllDisplays();
  EXPECT_TRUE(isPreventing());
  EXPECT_TRUE(isStored("hidesDockOnAllDisplays", true));
  EXPECT_TRUE(isStored("isOrvaneEnabled", true));
  EXPECT_EQ(model->guardService().snapshot().zones.size(), 2U);
}

TEST_F(OrvaneModelLockTest, TurningPreventModeOffByItsSwitchStopsAndClearsIt) {
  launchPreventing();
  model->toggleHideDockOnAllDisplays();
  EXPECT_FALSE(model->isGuardRunning());
  EXPECT_FALSE(model->hidesDockOnAllDisplays().value());
  EXPECT_TRUE(isStored("hidesDockOnAllDisplays", false));
  EXPECT_TRUE(isStored("isOrvaneEnabled", false));
}

TEST_F(OrvaneModelLockTest, TurningPinOnWhilePreventRunsChangesTheMode) {
  launchPreventing();
  EXPECT_EQ(writesOf([&] { model->toggleSelectedDisplayLock(); }),
            (Writes{{"isOrvaneEnabled", 2}, {"hidesDockOnAllDisplays", 1}}))
      << "off, then on again";
  EXPECT_TRUE(isPinned());
  EXPECT_TRUE(isStored("hidesDockOnAllDisplays", false));
  EXPECT_TRUE(isStored("isOrvaneEnabled", true));
  EXPECT_EQ(machine.observers.count(), 2U);
  EXPECT_EQ(machine.eventTaps.aliveCount(), 1U);
}

TEST_F(OrvaneModelLockTest, TurningPreventOnWhilePinRunsChangesTheMode) {
  launchPinned();
  holdTheModifier();
  EXPECT_EQ(writesOf([&] { model->toggleHideDockOnAllDisplays(); }),
            (Writes{{"isOrvaneEnabled", 2}, {"hidesDockOnAllDisplays", 1}}));
  EXPECT_TRUE(isPreventing());
  EXPECT_FALSE(model->isTemporarilyUnlocked().value());
  EXPECT_EQ(machine.eventTaps.aliveCount(), 1U);
}

TEST_F(OrvaneModelLockTest, TheSwitchStartsPreventModeThatIsChosenButStopped) {
  store("hidesDockOnAllDisplays", true);
  launch();
  EXPECT_EQ(writesOf([&] { model->toggleHideDockOnAllDisplays(); }),
            (Writes{{"selectedDisplayID", 1}, {"isOrvaneEnabled", 1}}));
  EXPECT_TRUE(isPreventing());
}

TEST_F(OrvaneModelLockTest, PinWithPreventChosenButStoppedClearsPrevent) {
  store("hidesDockOnAllDisplays", true);
  launch().toggleSelectedDisplayLock();
  EXPECT_TRUE(isPinned());
  EXPECT_TRUE(isStored("hidesDockOnAllDisplays", false));
}

// Without the permission.

TEST_F(OrvaneModelLockTest, WithoutPermissionTheLockOnlyAsks) {
  launch();
  machine.permission.setTrusted(false);
  EXPECT_EQ(writesOf([&] { model->toggleLock(); }), (Writes{{"selectedDisplayID", 1}}));
  machine.runDue();
  EXPECT_EQ(prompts.size(), 1U);
  EXPECT_FALSE(model->hasAccessibilityPermission().value());
  EXPECT_FALSE(model->guardService().snapshot().isObservingScreens);
  EXPECT_EQ(model->status(), OrvaneStatus::permissionRequired);
}

TEST_F(OrvaneModelLockTest, TheGrantedPermissionCompletesTheStart) {
  machine.permission.setTrusted(false);
  launch().toggleSelectedDisplayLock();
  machine.runDue();
  ASSERT_EQ(prompts.size(), 1U);
  machine.permission.setTrusted(true);
  machine.advance(30);
  EXPECT_EQ(writesOf([&] { prompts[0](); }), (Writes{{"isOrvaneEnabled", 1}}));
  EXPECT_TRUE(isPinned());
  EXPECT_TRUE(model->hasAccessibilityPermission().value());
  EXPECT_EQ(model->lastCheckedAt().value(), now());
}

TEST_F(OrvaneModelLockTest, AGrantRefreshesTheDisplaysBeforeTheStart) {
  machine.permission.setTrusted(false);
  launch().toggleLock();
  machine.runDue();
  machine.permission.setTrusted(true);
  model->selectDisplay("2");
  EXPECT_EQ(writesOf([&] { prompts.at(0)(); }),
            (Writes{{"selectedDisplayID", 1}, {"isOrvaneEnabled", 1}}));
  EXPECT_EQ(model->guardService().snapshot().lockedDisplayIdentifier, desk::uuidNamed('B'))
      << "the alias was rewritten first";
}

TEST_F(OrvaneModelLockTest, AGrantWithoutAnyTargetStartsNothing) {
  desk::detach(machine, 1);
  desk::detach(machine, 2);
  machine.permission.setTrusted(false);
  launch().toggleLock();
  machine.runDue();
  ASSERT_EQ(prompts.size(), 1U);
  machine.permission.setTrusted(true);
  prompts[0]();
  EXPECT_TRUE(model->hasAccessibilityPermission().value());
  EXPECT_EQ(stored("isOrvaneEnabled"), std::nullopt);
  EXPECT_FALSE(model->guardService().snapshot().isObservingScreens);
}

TEST_F(OrvaneModelLockTest, PreventWithoutPermissionAsksBeforeTheModeIsChosen) {
  machine.permission.setTrusted(false);
  launch();
  EXPECT_EQ(writesOf([&] { model->toggleHideDockOnAllDisplays(); }),
            (Writes{{"selectedDisplayID", 1}}));
  machine.runDue();
  EXPECT_EQ(prompts.size(), 1U);
  EXPECT_FALSE(model->hidesDockOnAllDisplays().value());
  machine.permission.setTrusted(true);
  EXPECT_EQ(writesOf([&] { prompts[0](); }),
            (Writes{{"hidesDockOnAllDisplays", 1}, {"isOrvaneEnabled", 1}}));
  EXPECT_TRUE(isPreventing());
}

TEST_F(OrvaneModelLockTest, APinChosenAfterTheRequestForPreventIsKept) {
  machine.permission.setTrusted(false);
  launch().toggleHideDockOnAllDisplays();
  machine.runDue();
  machine.permission.setTrusted(true);
  model->toggleSelectedDisplayLock();
  ASSERT_TRUE(isPinned());
  EXPECT_EQ(writesOf([&] { prompts.at(0)(); }), Writes{});
  EXPECT_TRUE(isPinned());
}

TEST_F(OrvaneModelLockTest, APinThatWasSwitchedOffAgainIsNotStartedByItsGrant) {
  machine.permission.setTrusted(false);
  launch().toggleSelectedDisplayLock();
  machine.runDue();
  machine.permission.setTrusted(true);
  model->toggleSelectedDisplayLock();
  model->toggleSelectedDisplayLock();
  prompts.at(0)();
  EXPECT_FALSE(model->isGuardRunning());
  EXPECT_EQ(stored("isOrvaneEnabled"), Value(false));
}

TEST_F(OrvaneModelLockTest, ALockThatResumedAndWasSwitchedOffIsNotReplacedByAnEarlierRequest) {
  store("isOrvaneEnabled", true);
  store("selectedDisplayID", desk::uuidNamed('A'));
  machine.permission.setTrusted(false);
  launch().toggleHideDockOnAllDisplays();
  machine.permission.setTrusted(true);
  model->resumeGuard();
  ASSERT_TRUE(isPinned());
  model->toggleLock();
  prompts.at(0)();
  EXPECT_FALSE(model->isGuardRunning());
}

TEST_F(OrvaneModelLockTest, AGrantForPreventWritesTheModeEvenWhenItIsChosenAlready) {
  machine.permission.setTrusted(false);
  launch().toggleHideDockOnAllDisplays();
  machine.runDue();
  machine.permission.setTrusted(true);
  model->setHidesDockOnAllDisplays(true);
  EXPECT_EQ(writesOf([&] { prompts.at(0)(); }),
            (Writes{{"hidesDockOnAllDisplays", 1}, {"isOrvaneEnabled", 1}}));
}

// The displays change.

TEST_F(OrvaneModelLockTest, UnpluggingTheTargetPausesTheGuardUntilItReturns) {
  launchPinned();
  machine.advance(5);
  EXPECT_EQ(writesOf([&] {
              desk::detach(machine, 1);
              machine.runDue();
            }),
            Writes{});
  EXPECT_FALSE(model->isGuardRunning());
  EXPECT_TRUE(isStored("isOrvaneEnabled", true));
  EXPECT_EQ(model->selectedDisplayID().value(), desk::uuidNamed('A'));
  EXPECT_EQ(model->displays().value().size(), 1U);
  EXPECT_EQ(model->status(), OrvaneStatus::targetMissing);
  EXPECT_EQ(model->lastCheckedAt().value(), now());
  desk::attach(machine, desk::laptop());
  machine.runDue();
  EXPECT_TRUE(isPinned());
  EXPECT_EQ(model->status(), OrvaneStatus::locked);
}

TEST_F(OrvaneModelLockTest, TheGuardIsNotifiedOfAChangeBeforeTheModel) {
  launchPinned();
  desk::detach(machine, 1);
  EXPECT_FALSE(model->isGuardRunning());
  EXPECT_EQ(model->displays().value().size(), 2U) << "the model's task is still to come";
  machine.runDue();
  EXPECT_EQ(model->displays().value().size(), 1U);
}

TEST_F(OrvaneModelLockTest, AChangeRestartsAGuardThatRuns) {
  launchPinned();
  desk::attach(machine, desk::monitorAbove());
  EXPECT_TRUE(hasTap(1)) << "the guard itself keeps its tap";
  machine.runDue();
  EXPECT_FALSE(hasTap(1)) << "the model starts it again";
  EXPECT_TRUE(isPinned());
}

TEST_F(OrvaneModelLockTest, AChangeDoesNotStartAGuardThatIsOff) {
  launch();
  EXPECT_EQ(writesOf([&] {
              desk::attach(machine, desk::monitorAbove());
              machine.runDue();
            }),
            (Writes{{"selectedDisplayID", 1}}));
  EXPECT_EQ(model->displays().value().size(), 3U);
  EXPECT_FALSE(model->guardService().snapshot().isObservingScreens);
}

TEST_F(OrvaneModelLockTest, AChangeWithoutPermissionLeavesTheGuardAsItIs) {
  launchPinned();
  machine.permission.setTrusted(false);
  desk::attach(machine, desk::monitorAbove());
  machine.runDue();
  EXPECT_TRUE(model->isGuardRunning());
  EXPECT_EQ(model->status(), OrvaneStatus::permissionRequired);
}

// Across launches.

TEST_F(OrvaneModelLockTest, TheLockIsRestoredAtTheNextLaunch) {
  launchPinned();
  machine.advance(5);
  EXPECT_EQ(writesOf([&] { relaunch(); }), Writes{});
  EXPECT_TRUE(isPinned());
  EXPECT_EQ(model->lastRestoreSucceeded().value(), std::nullopt);
  EXPECT_EQ(model->lastCheckedAt().value(), now());
}

TEST_F(OrvaneModelLockTest, ALockThatWasTurnedOffIsNotRestored) {
  launchPinned().toggleLock();
  relaunch();
  EXPECT_FALSE(model->isGuardRunning());
  EXPECT_TRUE(model->displays().value().empty()) << "without the wish nothing is refreshed";
}

TEST_F(OrvaneModelLockTest, TheLockIsRestoredAtTheFirstLaunchWithItsTarget) {
  launchPinned();
  desk::detach(machine, 1);
  machine.runDue();
  relaunch();
  EXPECT_FALSE(model->isGuardRunning());
  EXPECT_FALSE(model->guardService().snapshot().isObservingScreens);
  quit();
  desk::attach(machine, desk::laptop());
  machine.process.start();
  launch();
  EXPECT_TRUE(isPinned());
}

TEST_F(OrvaneModelLockTest, PreventModeIsRestoredWithoutAnyTarget) {
  desk::detach(machine, 1);
  desk::detach(machine, 2);
  store("isOrvaneEnabled", true);
  store("hidesDockOnAllDisplays", true);
  launch();
  EXPECT_EQ(model->selectedDisplayID().value(), std::nullopt);
  EXPECT_TRUE(model->guardService().snapshot().isObservingScreens);
  desk::attach(machine, desk::laptop());
  machine.runDue();
  EXPECT_TRUE(isPreventing());
}

TEST_F(OrvaneModelLockTest, PreventModeIsRestoredWithAnUnpluggedTarget) {
  store("isOrvaneEnabled", true);
  store("hidesDockOnAllDisplays", true);
  store("selectedDisplayID", "unplugged");
  launch();
  EXPECT_TRUE(isPreventing());
}

TEST_F(OrvaneModelLockTest, WithoutPermissionALaunchRestoresNothingAndDoesNotAsk) {
  store("isOrvaneEnabled", true);
  machine.permission.setTrusted(false);
  launch();
  EXPECT_FALSE(model->guardService().snapshot().isObservingScreens);
  EXPECT_TRUE(prompts.empty());
  EXPECT_EQ(model->status(), OrvaneStatus::permissionRequired);
  EXPECT_EQ(model->displays().value().size(), 2U) << "the displays are refreshed all the same";
  EXPECT_TRUE(isStored("isOrvaneEnabled", true));
}

}  // namespace
}  // namespace orvane
