// The application's snapshot of itself.
#include "Orvane/app/OrvaneSnapshot.hpp"
#include "tests/app/AppFixture.hpp"

namespace orvane {
namespace {

class OrvaneSnapshotTest : public AppFixture {
 protected:
  [[nodiscard]] OrvaneSnapshot now() const { return application.snapshot(); }
};

TEST_F(OrvaneSnapshotTest, IsEmptyWhileTheApplicationDoesNotRun) {
  begin();
  model().toggleSelectedDisplayLock();
  application.reopen();
  application.terminate();
  EXPECT_FALSE(now().guard.isRunning);
  EXPECT_TRUE(now().guard.zones.empty());
  EXPECT_EQ(now().mode, OrvaneMode::off);
  EXPECT_FALSE(now().showsMainPanel);
  EXPECT_EQ(now().selectedDisplayID, std::nullopt);
}

TEST_F(OrvaneSnapshotTest, ReportsTheGuardAndTheSelectedDisplay) {
  begin();
  model().selectDisplay(desk::uuidNamed('B'));
  EXPECT_EQ(now().mode, OrvaneMode::off);
  model().toggleSelectedDisplayLock();
  machine.runDue();
  EXPECT_TRUE(now().guard.isRunning);
  EXPECT_EQ(now().guard.zones.size(), 1U);
  EXPECT_EQ(now().guard.lockedDisplayIdentifier, desk::uuidNamed('B'));
  EXPECT_EQ(now().mode, OrvaneMode::pinning);
  EXPECT_EQ(now().status, OrvaneStatus::locked);
  ASSERT_TRUE(now().selectedDisplay);
  EXPECT_EQ(now().selectedDisplay->name, "Studio");
  detach(machine, 2);
  machine.runDue();
  EXPECT_FALSE(now().selectedDisplay);
  EXPECT_EQ(now().selectedDisplayID, desk::uuidNamed('B'));
}

TEST_F(OrvaneSnapshotTest, ReportsTheVisibleWindows) {
  begin();
  EXPECT_FALSE(now().showsMainPanel);
  application.reopen();
  EXPECT_TRUE(now().showsMainPanel);
  EXPECT_FALSE(now().showsSettings);
  command(",");
  EXPECT_TRUE(now().showsSettings);
  server().miniaturize(desk::Surfaces(server()).window("main"));
  EXPECT_FALSE(now().showsMainPanel);
  application.reopen();
  EXPECT_EQ(hand.close("main"), std::nullopt);
  EXPECT_FALSE(now().showsMainPanel);
  EXPECT_FALSE(now().showsSettings);
}

TEST_F(OrvaneSnapshotTest, ReportsTheStateOfThePermissionRequest) {
  attachTwoDisplays();
  application.launch();
  EXPECT_FALSE(now().asksForPermission);
  model().toggleHideDockOnAllDisplays();
  machine.runDue();
  EXPECT_TRUE(now().asksForPermission);
  EXPECT_FALSE(now().guide.isVisible);
  press("Open Privacy Settings", "alert");
  machine.advance(2);
  EXPECT_TRUE(now().guide.isVisible);
  EXPECT_TRUE(now().guide.isPolling);
  EXPECT_EQ(now().guide.state, PermissionGuideState::checking);
  machine.permission.setTrusted(true);
  machine.advance(1);
  EXPECT_EQ(now().guide.state, PermissionGuideState::success);
  EXPECT_FALSE(now().guide.isPolling);
  EXPECT_TRUE(now().hasAccessibilityPermission);
}

}  // namespace
}  // namespace orvane
