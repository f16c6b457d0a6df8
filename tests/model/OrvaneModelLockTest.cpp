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
  moveHolding(kCGEventFlagMaskAlternate);
  machine.advance(5);
  EXPECT_EQ(writesOf([&] { model->toggleLock(); }), (Writes{{"isOrvaneEnabled", 1}}));
  EXPECT_FALSE(model->isGuardRunning());
  EXPECT_TRUE(isStored("isOrvaneEnabled", false));
  EXPECT_FALSE(model->isTemporarilyUnlocked().value());
  EXPECT_EQ(model->lastCheckedAt().value(), now());
  EXPECT_EQ(model->status(), OrvaneStatus::unlocked);
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

// The two switches.

TEST_F(OrvaneModelLockTest, TurningPinOnWhilePreventRunsChangesTheMode) {
  launchPreventing();
  moveHolding(kCGEventFlagMaskAlternate);
  EXPECT_EQ(writesOf([&] { model->toggleSelectedDisplayLock(); }),
            (Writes{{"isOrvaneEnabled", 2}, {"hidesDockOnAllDisplays", 1}}))
      << "off, then on again";
  EXPECT_TRUE(isPinned());
  EXPECT_FALSE(model->isTemporarilyUnlocked().value());
  EXPECT_TRUE(isStored("hidesDockOnAllDisplays", false));
  EXPECT_TRUE(isStored("isOrvaneEnabled", true));
  EXPECT_EQ(machine.observers.count(), 2U);
  EXPECT_EQ(machine.eventTaps.aliveCount(), 1U);
}

TEST_F(OrvaneModelLockTest, TheSwitchStartsPreventModeThatIsChosenButStopped) {
  store("hidesDockOnAllDisplays", true);
  launch();
  EXPECT_EQ(writesOf([&] { model->toggleHideDockOnAllDisplays(); }),
            (Writes{{"selectedDisplayID", 1}, {"isOrvaneEnabled", 1}}));
  EXPECT_TRUE(isPreventing());
}

TEST_F(OrvaneModelLockTest, PinningClearsPreventModeThatIsChosenButStopped) {
  store("hidesDockOnAllDisplays", true);
  launch().toggleSelectedDisplayLock();
  EXPECT_TRUE(isPinned());
  EXPECT_TRUE(isStored("hidesDockOnAllDisplays", false));
}

// Without the permission.

TEST_F(OrvaneModelLockTest, AWaitingGuardFollowsTheChosenTarget) {
  store("selectedDisplayID", desk::uuidNamed('C'));
  launch().toggleLock();
  ASSERT_FALSE(isPinned());
  model->selectDisplay(desk::uuidNamed('B'));
  EXPECT_TRUE(isPinned());
  EXPECT_EQ(model->guardService().snapshot().lockedDisplayIdentifier, desk::uuidNamed('B'));
  model->toggleLock();
  model->selectDisplay(desk::uuidNamed('A'));
  EXPECT_FALSE(model->isGuardRunning()) << "the lock is off";
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
  EXPECT_TRUE(isPinned());
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
  EXPECT_FALSE(model->hidesDockOnAllDisplays().value());
  machine.permission.setTrusted(true);
  model->setHidesDockOnAllDisplays(true);
  EXPECT_EQ(writesOf([&] { prompts.at(0)(); }),
            (Writes{{"hidesDockOnAllDisplays", 1}, {"isOrvaneEnabled", 1}}));
  EXPECT_TRUE(isPreventing());
}

TEST_F(OrvaneModelLockTest, AGrantDoesNotWriteThePreventModeThatWasChosenBeforeTheRequest) {
  store("hidesDockOnAllDisplays", true);
  machine.permission.setTrusted(false);
  launch().toggleHideDockOnAllDisplays();
  machine.permission.setTrusted(true);
  EXPECT_EQ(writesOf([&] { prompts.at(0)(); }), (Writes{{"isOrvaneEnabled", 1}}));
  EXPECT_TRUE(isPreventing());
}

TEST_F(OrvaneModelLockTest, AGrantStartsTheModeThatWasRequested) {
  machine.permission.setTrusted(false);
  launch().toggleHideDockOnAllDisplays();
  machine.advance(2);
  model->toggleSelectedDisplayLock();
  machine.advance(2);
  machine.permission.setTrusted(true);
  prompts.at(0)();
  EXPECT_TRUE(isPreventing());
  prompts.at(1)();
  EXPECT_TRUE(isPinned()) << "the later request counts";

  model->toggleHideDockOnAllDisplays();
  machine.permission.setTrusted(false);
  model->suspendGuard();
  model->toggleHideDockOnAllDisplays();
  machine.advance(2);
  machine.permission.setTrusted(true);
  prompts.at(2)();
  EXPECT_TRUE(isPreventing()) << "the mode had been chosen before";
}

// The displays change.

TEST_F(OrvaneModelLockTest, AChangeRestartsAGuardThatRuns) {
  launchPinned();
  desk::attach(machine, desk::monitorAbove());
  EXPECT_TRUE(hasTap(1)) << "the guard itself keeps its tap";
  machine.runDue();
  EXPECT_FALSE(hasTap(1)) << "the model starts it again";
  EXPECT_TRUE(isPinned());
}

// Across launches.

TEST_F(OrvaneModelLockTest, PreventModeIsRestoredWithAnUnpluggedTarget) {
  store("isOrvaneEnabled", true);
  store("hidesDockOnAllDisplays", true);
  store("selectedDisplayID", "unplugged");
  launch();
  EXPECT_TRUE(isPreventing());
}

}  // namespace
}  // namespace orvane
