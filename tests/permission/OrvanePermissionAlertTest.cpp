// The alert: its panel, its modal session, which ends exactly once, and the effect of each answer.
#include <vector>

#include "Orvane/permission/OrvaneModalPanelDelegate.hpp"
#include "Orvane/permission/OrvanePermissionAlert.hpp"
#include "tests/permission/PermissionFlow.hpp"

namespace orvane {
namespace {

using OrvanePermissionAlertTest = PermissionFlow;

TEST_F(OrvanePermissionAlertTest, TheAlertIsShownAfterTheCallerHasReturned) {
  OrvaneAccessibilityPermission::check(nullptr);
  EXPECT_FALSE(isOpen("alert"));
  machine.runDue();
  EXPECT_TRUE(isOpen("alert"));
}

TEST_F(OrvanePermissionAlertTest, ThePanelHasTheAttributesOfAnAlert) {
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

TEST_F(OrvanePermissionAlertTest, ReturnOpensTheSettingsAndTwoSecondsLaterTheGuide) {
  check('a');
  key(ui::Key::enter);
  EXPECT_FALSE(isOpen("alert"));
  EXPECT_EQ(openedLinks().size(), 1U);
  machine.advance(1.999);
  EXPECT_FALSE(isGuideVisible());
  machine.advance(0.001);
  EXPECT_TRUE(isGuideVisible());
  machine.permission.setTrusted(true);
  machine.advance(1);
  EXPECT_EQ(granted, "a") << "the callback of the check";
}

TEST_F(OrvanePermissionAlertTest, WithoutAnIconASymbolOfTheSameSizeReplacesIt) {
  check('a');
  const ui::Rect button = frameOf("Not Now", "alert");
  press("Not Now", "alert");
  machine.advance(1);
  server().resources().images.remove("AppIcon");
  machine.appearance.accent = desk::Appearance::Accent{51, 102, 204};
  check('a');
  EXPECT_EQ(drawn("symbol dock.rectangle 44/600 rgba(0.2 0.4 0.8 1) (", "alert"), 1);
  EXPECT_EQ(frameOf("Not Now", "alert"), button);
}

class OrvaneModalPanelDelegateTest : public PermissionFlow {
 protected:
  /// Two nested sessions: a second stop would end the outer one.
  void runTwoSessions() {
    for (appkit::Window* const panel : {&outer, &inner}) {
      appkit::Application::runModal(*panel,
                                    [this](int response) { responses.push_back(response); });
    }
  }

  appkit::Window outer{appkit::WindowKind::panel, CGRectMake(0, 0, 50, 50), 1};
  appkit::Window inner{appkit::WindowKind::panel, CGRectMake(0, 0, 50, 50), 1};
  std::vector<int> responses;
  OrvaneModalPanelDelegate delegate;
};

TEST_F(OrvaneModalPanelDelegateTest, TheFirstResponseStopsTheSession) {
  runTwoSessions();
  delegate.stopModalOnce(1000);
  delegate.stopModalOnce(1001);
  delegate.windowWillClose();
  machine.runDue();
  EXPECT_EQ(responses, std::vector<int>{1000}) << "the outer session continues";
}

TEST_F(OrvaneModalPanelDelegateTest, ClosingThePanelDeclines) {
  runTwoSessions();
  delegate.windowWillClose();
  delegate.stopModalOnce(1000);
  machine.runDue();
  EXPECT_EQ(responses, std::vector<int>{1001});
}

}  // namespace
}  // namespace orvane
