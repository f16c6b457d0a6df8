// The alert: its panel, its modal session, and what follows each answer.
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
  /// Asserts that the alert is closed and has no further effect.
  void expectDeclined() {
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
};

TEST_F(OrvanePermissionAlertTest, WithThePermissionNothingIsShown) {
  machine.permission.setTrusted(true);
  OrvaneAccessibilityPermission::check([this] { granted += 'a'; });
  EXPECT_EQ(granted, "a") << "the callback is called before the check returns";
  machine.advance(5);
  EXPECT_TRUE(server().windows().empty());
}

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

TEST_F(OrvanePermissionAlertTest, WhileItIsShownTheMainQueueDeliversNothing) {
  check('a');
  bool taskRan = false;
  appkit::MainQueue::async([&] { taskRan = true; });
  machine.advance(10);
  EXPECT_FALSE(taskRan);
  EXPECT_TRUE(OrvaneAccessibilityPermission::isChecking()) << "the second ends on the main queue";
  press("Not Now", "alert");
  EXPECT_TRUE(taskRan);
  EXPECT_FALSE(OrvaneAccessibilityPermission::isChecking());
}

TEST_F(OrvanePermissionAlertTest, TwoChecksWithinASecondShowOneAlertAndTheSecondIsForgotten) {
  check('a');
  check('b');
  EXPECT_EQ(alertCount(), 1U);
  press("Open Privacy Settings", "alert");
  machine.permission.setTrusted(true);
  machine.advance(10);
  EXPECT_EQ(alertCount(), 0U);
  EXPECT_EQ(granted, "a");
}

TEST_F(OrvanePermissionAlertTest, NotNowEndsTheFlow) {
  check('a');
  press("Not Now", "alert");
  expectDeclined();
}

TEST_F(OrvanePermissionAlertTest, TheCloseButtonIsNotNow) {
  check('a');
  const CGPoint corner = server().topLeftOf(*window("alert"));
  const auto button = window("alert")->closeButton();
  ASSERT_TRUE(button);
  pressAt({corner.x + button->x + 6, corner.y + button->y + 6});
  release();
  expectDeclined();
}

TEST_F(OrvanePermissionAlertTest, WhatItEndedWithTheAlertHasNeitherDelegateNorContent) {
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

TEST_F(OrvanePermissionAlertTest, ASessionThatSomebodyElseStopsLeavesNeitherDelegateNorContent) {
  check('a');
  const auto panel = window("alert");
  appkit::Application::stopModal(1001);
  machine.runDue();
  EXPECT_FALSE(panel->willClose) << "closing the panel now would stop a session that is over";
  EXPECT_EQ(panel->content, nullptr);
}

TEST_F(OrvanePermissionAlertTest, EscapeIsNotNow) {
  check('a');
  key(ui::Key::escape);
  expectDeclined();
}

TEST_F(OrvanePermissionAlertTest, ReturnOpensTheSettings) {
  check('a');
  key(ui::Key::enter);
  EXPECT_EQ(alertCount(), 0U);
  EXPECT_EQ(openedCount(), 1U);
}

TEST_F(OrvanePermissionAlertTest,
       OpeningTheSettingsTakesTheFirstAcceptedLinkAndTheGuideTwoSeconds) {
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
  EXPECT_EQ(granted, "a") << "the callback is the one given to the check that raised the alert";
}

TEST_F(OrvanePermissionAlertTest, ThePermissionGrantedBeforeTheGuideIsSeenAtItsFirstTick) {
  check('a');
  press("Open Privacy Settings", "alert");
  machine.permission.setTrusted(true);
  machine.advance(2);
  EXPECT_TRUE(isGuideVisible());
  EXPECT_EQ(granted, "");
  machine.advance(1);
  EXPECT_EQ(granted, "a");
}

TEST_F(OrvanePermissionAlertTest, TheEndOfTheProcessEndsTheAlertSilently) {
  check('a');
  machine.process.end();
  EXPECT_FALSE(server().modal.isRunning());
  EXPECT_EQ(alertCount(), 0U);
  EXPECT_EQ(granted, "");
}

TEST_F(OrvanePermissionAlertTest, TheFlowCanBeWalkedWithTheMouseAlone) {
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
