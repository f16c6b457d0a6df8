// Each test describes a step of a faulty application, and the step of a correct one.
#include <string>

#include "desk/explore/EffectChecker.hpp"
#include "tests/explore/StepFixture.hpp"

namespace orvane::desk::explore {
namespace {

class EffectCheckerTest : public StepFixture {
 protected:
  EffectCheckerTest() {
    for (Observation* const observation : {&before, &after}) {
      observation->stored.selected = "LEFT";
    }
  }
  [[nodiscard]] std::string violationOf(const std::string& text) {
    const auto violation = checker.check(step(text), sideBySide());
    return violation ? violation->text : "";
  }
  [[nodiscard]] static DisplayConfiguration sideBySide() {
    DisplayConfiguration configuration;
    configuration.edge = DockEdge::bottom;
    for (const auto& [x, name] : {std::pair(0.0, "LEFT"), std::pair(1000.0, "RIGHT")}) {
      DisplayConfiguration::Screen screen;
      screen.x = x;
      screen.width = 1000;
      screen.height = 800;
      screen.names = {name};
      configuration.screens.push_back(std::move(screen));
    }
    return configuration;
  }

  EffectChecker checker;
};

TEST_F(EffectCheckerTest, ALaunchRestoresTheLock) {
  before.isLaunched = false;
  before.stored.wants = after.stored.wants = true;
  EXPECT_EQ(violationOf("launch"), "the launch did not restore the lock");
  after.isGuardRunning = true;
  EXPECT_EQ(violationOf("launch"), "");
}

TEST_F(EffectCheckerTest, PinningAndUnpinningAreStored) {
  const std::string pin = "press \"Pin Dock\" in menu";
  after.isStatusMenuOpen = true;
  EXPECT_EQ(violationOf(pin), "the Dock is not pinned");
  after.stored.wants = after.isGuardRunning = true;
  EXPECT_EQ(violationOf(pin), "");
  before = after;
  EXPECT_EQ(violationOf("press \"解除固定 Dock\" in main"), "the Dock is still pinned");
}

TEST_F(EffectCheckerTest, PreventingIsStored) {
  after.stored.wants = after.isGuardRunning = true;
  EXPECT_NE(violationOf("press \"Prevent Dock Pop-Up\" in main"), "");
  after.stored.prevents = true;
  EXPECT_EQ(violationOf("press \"Prevent Dock Pop-Up\" in main"), "");
}

TEST_F(EffectCheckerTest, TheGuardDoesNotStopWhileTheLockIsOn) {
  before.stored.wants = after.stored.wants = true;
  before.isGuardRunning = true;
  EXPECT_EQ(violationOf("advance 1"), "the guard stopped although the lock is on");
  after.isGuardWaiting = true;
  EXPECT_EQ(violationOf("advance 1"), "");
}

TEST_F(EffectCheckerTest, OnlyUsersChangeTheirChoices) {
  after.stored.modifier = "shift";
  EXPECT_NE(violationOf("advance 1"), "");
  EXPECT_EQ(violationOf("do temporaryUnlockModifier shift"), "");
  after.stored = before.stored;
  after.stored.prevents = true;
  EXPECT_EQ(violationOf("press \"Left\" in main"),
            "the lock or mode was stored without a user action");
  EXPECT_EQ(violationOf("do toggleLock"), "");
}

TEST_F(EffectCheckerTest, AGuardThatShutItselfOffRests) {
  before.stored.wants = after.stored.wants = true;
  after.isGuardWaiting = true;
  filter.hasShutOff = true;
  EXPECT_EQ(violationOf("push 0 1 times 200"), "");
  filter.hasShutOff = false;
  machine().advance(2);
  before.now = machine().clock.now();
  after.isGuardRunning = after.isTapEnabled = true;
  EXPECT_EQ(violationOf("advance 1"), "it runs again after it shut itself off");
}

TEST_F(EffectCheckerTest, ALockWithoutThePermissionRequestsIt) {
  before.isTrusted = after.isTrusted = false;
  EXPECT_EQ(violationOf("do toggleSelectedDisplayLock"),
            "a lock without the permission did not request it");
  after.isModal = true;
  EXPECT_EQ(violationOf("do toggleSelectedDisplayLock"), "");
}

TEST_F(EffectCheckerTest, AGrantSwitchesOnTheRequestedMode) {
  before.isTrusted = after.isTrusted = false;
  after.isModal = true;
  EXPECT_EQ(violationOf("press \"Prevent Dock Pop-Up\" in menu"), "");
  before.isModal = after.isModal = false;
  before.guideState = PermissionGuideState::checking;
  after.guideState = PermissionGuideState::success;
  after.isTrusted = true;
  before.stored.wants = after.stored.wants = true;
  machine().advance(1);
  const EffectChecker requested = checker;
  EXPECT_EQ(violationOf("advance 1"),
            "the granted permission did not switch on the requested lock");
  checker = requested;
  before.stored.prevents = after.stored.prevents = true;
  EXPECT_EQ(violationOf("advance 1"), "");
}

TEST_F(EffectCheckerTest, TheLockComesBackWithThePermission) {
  before.stored.wants = after.stored.wants = true;
  after.isTrusted = false;
  EXPECT_EQ(violationOf("trust off"), "");
  machine().advance(2);
  before.isTrusted = false;
  after.isTrusted = true;
  EXPECT_EQ(violationOf("trust on"), "") << "the application looks once a second";
  machine().advance(1.1);
  before.isTrusted = true;
  EXPECT_EQ(violationOf("advance 1.1"), "the lock did not come back with the permission");
}

TEST_F(EffectCheckerTest, OnlyARefusedTapMakesThePermissionStale) {
  after.snapshot.isPermissionStale = true;
  EXPECT_NE(violationOf("advance 1"), "");
  machine().eventTaps.setRefusesCreation(true);
  EXPECT_EQ(violationOf("advance 1"), "");
}

TEST_F(EffectCheckerTest, NoSecondAlertAppearsWithinASecond) {
  const auto open = [&] {
    after.isModal = true;
    return violationOf("click 1 1");
  };
  EXPECT_EQ(open(), "");
  machine().advance(0.9);
  EXPECT_EQ(open(), "it appeared twice within a second");
  machine().advance(1);
  EXPECT_EQ(open(), "");
}

TEST_F(EffectCheckerTest, AClosedPanelAndSettingsThatOpenAreSeen) {
  before.trees["main"] = after.trees["main"] = {};
  EXPECT_EQ(violationOf("press \"Settings\" in main"), "the settings did not open");
  EXPECT_EQ(violationOf("press \"Close\" in main"), "main is still shown");
  after.trees.erase("main");
  EXPECT_EQ(violationOf("press \"Close\" in main"), "");
}

TEST_F(EffectCheckerTest, SwitchesLeaveTheMenuOpenAndUpToDate) {
  const std::string press = "press \"Open at Login\" in menu";
  machine().loginItem.status = appkit::LoginItem::Status::enabled;
  EXPECT_EQ(violationOf(press), "a press of a switch closed it");
  after.isStatusMenuOpen = true;
  ui::SemanticsNode& row = after.trees["menu"];
  row.label = "Open at Login";
  row.value = "0";
  EXPECT_EQ(violationOf(press), "its switch does not match the login item");
  row.value = "1";
  EXPECT_EQ(violationOf(press), "");
}

TEST_F(EffectCheckerTest, AFailureOfTheLoginItemIsShown) {
  const std::string press = "press \"Open at Login\" in menu";
  after.isStatusMenuOpen = true;
  machine().loginItem.error = "Operation not permitted";
  EXPECT_EQ(violationOf(press), "the failure of the login item is not shown");
  after.snapshot.launchAtLoginErrorMessage = machine().loginItem.error;
  EXPECT_EQ(violationOf(press), "");
}

TEST_F(EffectCheckerTest, TheLinkAfterARefusedOneIsTried) {
  const std::string press = "press \"Open Dock Settings\" in main";
  Links& links = machine().links;
  links.refuse("x-apple.systempreferences:com.apple.Desktop");
  EXPECT_EQ(violationOf(press), "no link with \"Desktop-Settings\" was opened");
  links.openURL("x-apple.systempreferences:com.apple.Desktop-Settings.extension");
  EXPECT_NE(violationOf(press), "");
  links.openURL("x-apple.systempreferences:com.apple.preference.dock");
  EXPECT_EQ(violationOf(press), "");
  links.openFile("/System/Applications/System Settings.app");
  EXPECT_NE(violationOf(press), "") << "the link before was accepted";
}

TEST_F(EffectCheckerTest, TabMovesTheFocusToTheNextControl) {
  before.keySurface = after.keySurface = "main";
  for (Observation* const observation : {&before, &after}) {
    for (std::uint64_t id = 1; id <= 3; ++id) {
      ui::SemanticsNode control;
      control.id = id;
      control.isFocusable = true;
      observation->trees["main"].children.push_back(control);
    }
  }
  std::vector<ui::SemanticsNode>& controls = after.trees["main"].children;
  before.trees["main"].children[0].isFocused = controls[2].isFocused = true;
  machine().advance(1);
  EXPECT_EQ(violationOf("key tab"), "Tab did not move it to the next control in main");
  machine().modifierKeys.hold(kCGEventFlagMaskShift);
  EXPECT_EQ(violationOf("key tab"), "") << "backwards";
}

}  // namespace
}  // namespace orvane::desk::explore
