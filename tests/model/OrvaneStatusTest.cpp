// The model's status: which condition takes precedence.
#include <gtest/gtest.h>

#include "Orvane/model/OrvaneStatus.hpp"
#include "tests/support/ModelFixture.hpp"

namespace orvane {
namespace {

using OrvaneStatusTest = ModelFixture;

TEST_F(OrvaneStatusTest, IsTheFirstConditionThatHolds) {
  store("selectedDisplayID", "gone");
  desk::setDockOrientation(machine, "top");
  machine.permission.setTrusted(false);
  launch();
  EXPECT_EQ(model->status(), OrvaneStatus::permissionRequired);
  machine.permission.setTrusted(true);
  model->refreshPermission();
  EXPECT_EQ(model->status(), OrvaneStatus::targetMissing);
  model->selectDisplay(desk::uuidNamed('A'));
  EXPECT_EQ(model->status(), OrvaneStatus::targetMissing) << "the displays are not listed yet";
  model->refreshDisplays();
  EXPECT_EQ(model->status(), OrvaneStatus::needsCheck);
  desk::setDockOrientation(machine, "bottom");
  EXPECT_EQ(model->status(), OrvaneStatus::unlocked);
  model->toggleLock();
  EXPECT_EQ(model->status(), OrvaneStatus::locked);
  moveHolding(kCGEventFlagMaskAlternate);
  EXPECT_EQ(model->status(), OrvaneStatus::temporarilyUnlocked);
  desk::setDockOrientation(machine, "sideways");
  EXPECT_EQ(model->status(), OrvaneStatus::needsCheck) << "the edge is read at each call";
}

TEST_F(OrvaneStatusTest, InPreventModeAMissingTargetIsNotReported) {
  store("selectedDisplayID", "gone");
  store("hidesDockOnAllDisplays", true);
  launch().refreshDisplays();
  EXPECT_EQ(model->status(), OrvaneStatus::unlocked);
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
