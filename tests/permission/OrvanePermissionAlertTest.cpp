// The alert: its panel, its modal session, and the effect of each answer.
#include "Orvane/permission/OrvanePermissionAlert.hpp"
#include "Orvane/platform/appkit/MainQueue.hpp"
#include "tests/permission/PermissionFlow.hpp"

namespace orvane {
namespace {

class OrvanePermissionAlertTest : public PermissionFlow {
 protected:
  [[nodiscard]] std::size_t openedCount() const { return machine.links.opened().size(); }
  std::size_t alertCount() {
    std::size_t count = 0;
    for (const auto& shown : server().windows()) {
      count += shown->className == "OrvaneAlertPanel" ? 1U : 0U;
    }
    return count;
  }
};

TEST_F(OrvanePermissionAlertTest, TheAlertIsShownAfterTheCallerHasReturned) {
  OrvaneAccessibilityPermission::check(nullptr);
  EXPECT_EQ(alertCount(), 0U);
  machine.runDue();
  EXPECT_EQ(alertCount(), 1U);
}

TEST_F(OrvanePermissionAlertTest, ThePanelIsAModalAlertsPanel) {
  check('a');
  const auto panel = window("alert");
  ASSERT_NE(panel, nullptr);
  EXPECT_TRUE(panel->isPanel());
  EXPECT_EQ(panel->styleMask, 3U);
  EXPECT_EQ(panel->level, 8);
  EXPECT_EQ(panel->contentFrame().size.width, 480);
  EXPECT_EQ(panel->contentFrame().size.height, 372);
  EXPECT_TRUE(panel->hasTransparentTitlebar);
  EXPECT_TRUE(panel->isTitleHidden);
  EXPECT_TRUE(panel->isMovableByBackground);
  EXPECT_FALSE(panel->becomesKeyOnlyIfNeeded);
  EXPECT_TRUE(server().focus.isActive());
  EXPECT_EQ(server().focus.keyWindow(), panel);
  EXPECT_TRUE(server().modal.isModal(*panel));
  EXPECT_EQ(CGRectGetMidX(panel->frame), 960) << "centred";
}

TEST_F(OrvanePermissionAlertTest, WhileItIsShownTheMainQueueIsHeld) {
  check('a');
  bool taskRan = false;
  appkit::MainQueue::async([&] { taskRan = true; });
  machine.advance(10);
  EXPECT_FALSE(taskRan);
  EXPECT_TRUE(OrvaneAccessibilityPermission::isChecking())
      << "the second's end waits for the main queue";
  press("Not Now", "alert");
  EXPECT_TRUE(taskRan);
  EXPECT_FALSE(OrvaneAccessibilityPermission::isChecking());
}

TEST_F(OrvanePermissionAlertTest, NotNowEscapeAndTheCloseButtonEndTheFlow) {
  for (int way = 0; way < 3; ++way) {
    machine.permission.setTrusted(false);
    check('a');
    ASSERT_EQ(alertCount(), 1U);
    if (way == 0) {
      press("Not Now", "alert");
    } else if (way == 1) {
      key(ui::Key::escape);
    } else {
      const CGPoint corner = server().topLeftOf(*window("alert"));
      const ui::Rect button = window("alert")->closeButton().value();
      click({corner.x + button.x + 6, corner.y + button.y + 6});
    }
    EXPECT_EQ(alertCount(), 0U);
    EXPECT_FALSE(server().modal.isRunning());
    EXPECT_FALSE(machine.runLoop.isMainQueueHeld());
    EXPECT_EQ(machine.runLoop.mode(), desk::RunLoop::Mode::standard);
    machine.permission.setTrusted(true);
    machine.advance(30);
    EXPECT_EQ(openedCount(), 0U);
    EXPECT_FALSE(isGuideVisible());
    EXPECT_EQ(granted, "");
  }
}

TEST_F(OrvanePermissionAlertTest, TheClosedPanelHasNeitherDelegateNorContent) {
  for (const char* const button : {"Not Now", "Open Privacy Settings"}) {
    check('a');
    const auto panel = window("alert");
    ASSERT_TRUE(panel->willClose);
    ASSERT_NE(panel->content, nullptr);
    press(button, "alert");
    EXPECT_FALSE(panel->willClose) << button;
    EXPECT_EQ(panel->content, nullptr) << button;
    machine.advance(1);
  }
}

TEST_F(OrvanePermissionAlertTest,
       ThePanelOfASessionStoppedFromOutsideHasNeitherDelegateNorContent) {
  check('a');
  const auto panel = window("alert");
  appkit::Application::stopModal(1001);
  machine.runDue();
  EXPECT_FALSE(panel->willClose) << "closing the panel now would stop another session";
  EXPECT_EQ(panel->content, nullptr);
}

TEST_F(OrvanePermissionAlertTest, ReturnOpensTheSettings) {
  check('a');
  key(ui::Key::enter);
  EXPECT_EQ(alertCount(), 0U);
  EXPECT_EQ(openedCount(), 1U);
}

TEST_F(OrvanePermissionAlertTest, TheSettingsOpenByTheFirstAcceptedLinkAndTheGuideTwoSecondsLater) {
  machine.links.refuse("x-apple.systempreferences:com.apple.settings");
  check('a');
  press("Open Privacy Settings", "alert");
  ASSERT_EQ(openedCount(), 2U);
  EXPECT_EQ(machine.links.opened()[1].url,
            "x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility");
  machine.advance(1.999);
  EXPECT_FALSE(isGuideVisible());
  machine.advance(0.001);
  EXPECT_TRUE(isGuideVisible());
  machine.permission.setTrusted(true);
  machine.advance(1);
  EXPECT_EQ(granted, "a") << "the callback of the check";
}

TEST_F(OrvanePermissionAlertTest, TheEndOfTheProcessEndsTheAlertSilently) {
  check('a');
  machine.process.end();
  EXPECT_FALSE(server().modal.isRunning());
  EXPECT_EQ(alertCount(), 0U);
  EXPECT_EQ(granted, "");
}

TEST_F(OrvanePermissionAlertTest, TheMouseAloneSufficesForTheFlow) {
  const auto click = [this](const std::string& label, const std::string& surface) {
    const auto control = hand.control(label, surface);
    ASSERT_TRUE(control) << label;
    hand.click({CGRectGetMidX(control->frame), CGRectGetMidY(control->frame)});
  };
  check('a');
  click("Open Privacy Settings", "alert");
  machine.advance(2);
  click("Orvane", "system");
  EXPECT_TRUE(machine.permission.isTrusted());
  machine.advance(1);
  EXPECT_EQ(granted, "a");
  click("Done", "guide");
  EXPECT_FALSE(isGuideVisible());
}

}  // namespace
}  // namespace orvane
