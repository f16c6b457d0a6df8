// The model's status: which condition takes precedence.
#include <functional>

#include <gtest/gtest.h>

#include "Orvane/model/OrvaneStatus.hpp"
#include "tests/support/ModelFixture.hpp"

namespace orvane {
namespace {

class OrvaneStatusTest : public ModelFixture {};

TEST_F(OrvaneStatusTest, AStoppedGuardIsUnlockedAndARunningOneLocked) {
  launch().refreshDisplays();
  EXPECT_EQ(model->status(), OrvaneStatus::unlocked);
  model->toggleLock();
  EXPECT_EQ(model->status(), OrvaneStatus::locked);
  model->toggleLock();
  EXPECT_EQ(model->status(), OrvaneStatus::unlocked);
}

TEST_F(OrvaneStatusTest, WithoutAnyTargetChosenPinningIsUnlocked) {
  launch();
  ASSERT_EQ(model->selectedDisplayID().value(), std::nullopt);
  EXPECT_EQ(model->status(), OrvaneStatus::unlocked);
}

TEST_F(OrvaneStatusTest, AMissingPermissionComesBeforeAMissingTarget) {
  store("selectedDisplayID", "gone");
  machine.permission.setTrusted(false);
  launch();
  EXPECT_EQ(model->status(), OrvaneStatus::permissionRequired);
  machine.permission.setTrusted(true);
  model->refreshPermission();
  EXPECT_EQ(model->status(), OrvaneStatus::targetMissing);
}

TEST_F(OrvaneStatusTest, AMissingTargetComesBeforeAnUnusableEdge) {
  store("selectedDisplayID", "gone");
  desk::setDockOrientation(machine, "top");
  launch();
  EXPECT_EQ(model->status(), OrvaneStatus::targetMissing);
  model->selectDisplay(desk::uuidNamed('A'));
  model->refreshDisplays();
  EXPECT_EQ(model->status(), OrvaneStatus::needsCheck);
}

TEST_F(OrvaneStatusTest, InPreventModeAMissingTargetIsNotReported) {
  store("selectedDisplayID", "gone");
  store("hidesDockOnAllDisplays", true);
  launch().refreshDisplays();
  EXPECT_EQ(model->status(), OrvaneStatus::unlocked);
}

TEST_F(OrvaneStatusTest, ATargetIsMissingUntilTheDisplaysHaveBeenListed) {
  store("selectedDisplayID", desk::uuidNamed('A'));
  launch();
  EXPECT_EQ(model->status(), OrvaneStatus::targetMissing);
  model->refreshDisplays();
  EXPECT_EQ(model->status(), OrvaneStatus::unlocked);
}

TEST_F(OrvaneStatusTest, AnUnknownEdgeComesBeforeARunningGuard) {
  launchPinned();
  desk::setDockOrientation(machine, "sideways");
  EXPECT_EQ(model->status(), OrvaneStatus::needsCheck) << "the edge is read at each call";
  moveHolding(kCGEventFlagMaskAlternate);
  EXPECT_EQ(model->status(), OrvaneStatus::needsCheck);
  desk::setDockOrientation(machine, "left");
  EXPECT_EQ(model->status(), OrvaneStatus::temporarilyUnlocked);
}

TEST_F(OrvaneStatusTest, AHeldModifierUnlocksTemporarily) {
  launchPinned();
  EXPECT_EQ(model->status(), OrvaneStatus::locked);
  moveHolding(kCGEventFlagMaskAlternate);
  EXPECT_EQ(model->status(), OrvaneStatus::temporarilyUnlocked);
  moveHolding(0);
  EXPECT_EQ(model->status(), OrvaneStatus::locked);
}

TEST_F(OrvaneStatusTest, ARunningGuardWithoutPermissionReportsThePermission) {
  launchPinned();
  machine.permission.setTrusted(false);
  EXPECT_EQ(model->status(), OrvaneStatus::locked) << "not known yet";
  model->refreshDisplays();
  EXPECT_TRUE(model->isGuardRunning());
  EXPECT_EQ(model->status(), OrvaneStatus::permissionRequired);
}

}  // namespace
}  // namespace orvane
