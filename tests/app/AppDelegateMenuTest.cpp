// The menu under the status item: its rows, what they do, and what of it stays open.
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "tests/app/AppFixture.hpp"
#include "tests/support/RecordingCanvas.hpp"

namespace orvane {
namespace {

class AppDelegateMenuTest : public AppFixture {
 protected:
  AppDelegateMenuTest() { store("appLanguage", std::string("english")); }

  void beginWithOpenMenu() {
    begin();
    ASSERT_TRUE(openMenu());
  }
  [[nodiscard]] bool isOpen() { return server().menus.isStatusMenuOpen(); }
  /// Those of all rows, from above.
  [[nodiscard]] std::vector<std::shared_ptr<desk::HostedView>> views() {
    std::vector<std::shared_ptr<desk::HostedView>> all;
    server().menus.layOut();
    for (const desk::MenuRow& shown : server().menus.rows()) {
      if (shown.view != nullptr) {
        all.push_back(shown.view);
      }
    }
    return all;
  }
  /// The grey of a row's highlight, if the row shows one.
  [[nodiscard]] bool isHighlighted(const std::string& title) {
    for (const desk::MenuRow& shown : server().menus.rows()) {
      if (server().menus.menu()->items[shown.itemIndex].title == title) {
        ui::RecordingCanvas canvas;
        shown.view->update();
        shown.view->host().paint(canvas, {0, 0, 208, 30});
        // A rounded rectangle of radius 6, three points from the sides and two from above.
        return canvas.text().find("3 2 202 26") != std::string::npos &&
               canvas.text() != idleDrawing(title);
      }
    }
    return false;
  }
  void rememberIdleDrawings() {
    for (const desk::MenuRow& shown : server().menus.rows()) {
      if (shown.view != nullptr) {
        ui::RecordingCanvas canvas;
        shown.view->update();
        shown.view->host().paint(canvas, {0, 0, 208, 30});
        idle_[server().menus.menu()->items[shown.itemIndex].title] = canvas.text();
      }
    }
  }

 private:
  [[nodiscard]] std::string idleDrawing(const std::string& title) { return idle_[title]; }

  std::map<std::string, std::string> idle_;
};

TEST_F(AppDelegateMenuTest, ShowsSwitchesDisplaysAndActionsInTheirOrder) {
  beginWithOpenMenu();
  EXPECT_EQ(menuText(),
            "power | Open at Login | off\n-\neye.slash | Prevent Dock Pop-Up | off\n"
            "lock | Pin Dock | off\n-\n# Choose Display\n"
            "display | Display (Main) | selected\ndisplay | Studio\n-\n"
            "macwindow | Open Window\ngearshape | Settings\npower | Quit\n");
}

TEST_F(AppDelegateMenuTest, HasRowsOf208By30PointsAndAHeaderOf208By26) {
  beginWithOpenMenu();
  int views = 0;
  for (const desk::MenuRow& shown : server().menus.rows()) {
    const appkit::MenuItem& item = server().menus.menu()->items[shown.itemIndex];
    if (shown.view != nullptr) {
      ++views;
      const double height = item.title == "Choose Display" ? 26 : 30;
      EXPECT_DOUBLE_EQ(shown.frame.size.width, 208);
      EXPECT_DOUBLE_EQ(shown.frame.size.height, height);
      // The menu is as wide as its widest row: each one must have asked for that itself.
      EXPECT_DOUBLE_EQ(shown.view->frame().size.width, 208) << item.title;
      EXPECT_DOUBLE_EQ(shown.view->frame().size.height, height) << item.title;
      EXPECT_FALSE(item.title.empty());
    }
  }
  EXPECT_EQ(views, 9);
}

TEST_F(AppDelegateMenuTest, ItsItemsSayWhatIsOnAndWhatIsChosen) {
  const auto itemsThatAreOn = [] {
    std::vector<std::string> titles;
    for (const appkit::MenuItem& item : server().menus.menu()->items) {
      if (item.isOn) {
        titles.push_back(item.title);
      }
    }
    return titles;
  };
  beginWithOpenMenu();
  EXPECT_EQ(itemsThatAreOn(), std::vector<std::string>{"Display (Main)"});
  ASSERT_TRUE(pressRow("Pin Dock"));
  EXPECT_EQ(itemsThatAreOn(), (std::vector<std::string>{"Pin Dock", "Display (Main)"}));
}

TEST_F(AppDelegateMenuTest, WithoutATargetPinningIsDisabledAndPreventingWorks) {
  // Nothing has listed the displays before the menu is opened for the first time.
  begin();
  EXPECT_EQ(row("Pin Dock"), "lock | Pin Dock | off | disabled");
  EXPECT_FALSE(pressRow("Pin Dock"));
  EXPECT_FALSE(model().isGuardRunning());
  EXPECT_TRUE(pressRow("Prevent Dock Pop-Up"));
  EXPECT_TRUE(model().isGuardRunning());
  EXPECT_EQ(row("Prevent Dock Pop-Up"), "eye.slash | Prevent Dock Pop-Up | on");
  EXPECT_EQ(icon(), "lock.fill");
}

TEST_F(AppDelegateMenuTest, WithoutDisplaysOneDisabledRowStandsForThem) {
  machine.permission.setTrusted(true);
  application.launch();
  EXPECT_EQ(menuText(),
            "power | Open at Login | off\n-\neye.slash | Prevent Dock Pop-Up | off\n"
            "lock | Pin Dock | off | disabled\n-\n# Choose Display\n"
            "display.trianglebadge.exclamationmark | No displays detected | disabled\n-\n"
            "macwindow | Open Window\ngearshape | Settings\npower | Quit\n");
}

TEST_F(AppDelegateMenuTest, TheRowWithoutDisplaysIsChineseToo) {
  store("appLanguage", std::string("chinese"));
  application.launch();
  EXPECT_EQ(row("未检测到显示器"),
            "display.trianglebadge.exclamationmark | 未检测到显示器 | disabled");
}

TEST_F(AppDelegateMenuTest, OpeningReadsDisplaysPermissionAndLoginItemAnew) {
  begin();
  desk::attach(machine, desk::monitorAbove());
  machine.loginItem.status = appkit::LoginItem::Status::enabled;
  machine.permission.setTrusted(false);
  ASSERT_TRUE(openMenu());
  EXPECT_EQ(row("Open at Login"), "power | Open at Login | on");
  EXPECT_EQ(row("Wall"), "display | Wall");
  EXPECT_FALSE(model().hasAccessibilityPermission().value());
}

TEST_F(AppDelegateMenuTest, OpeningMarksAStoredAliasByItsDisplay) {
  store("selectedDisplayID", std::string("2"));
  begin();
  ASSERT_TRUE(openMenu());
  EXPECT_EQ(row("Studio"), "display | Studio | selected");
  EXPECT_EQ(row("Display (Main)"), "display | Display (Main)");
}

TEST_F(AppDelegateMenuTest, AnAliasThatIsChosenWhileTheMenuIsOpenMarksNoRowUntilItOpensAgain) {
  beginWithOpenMenu();
  ASSERT_EQ(row("Display (Main)"), "display | Display (Main) | selected");
  model().selectDisplay("2");
  // A switch builds the menu anew and lists no displays.
  ASSERT_TRUE(press("Open at Login"));
  ASSERT_EQ(model().selectedDisplayID().value(), "2");
  ASSERT_EQ(model().selectedDisplay()->name, "Studio");
  EXPECT_EQ(row("Display (Main)"), "display | Display (Main)");
  EXPECT_EQ(row("Studio"), "display | Studio");
  ASSERT_TRUE(openMenu());
  EXPECT_EQ(row("Studio"), "display | Studio | selected");
}

TEST_F(AppDelegateMenuTest, OpeningBringsTheIconUpToDate) {
  begin();
  model().refreshDisplays();
  model().toggleSelectedDisplayLock();
  ASSERT_EQ(icon(), "lock.open");
  ASSERT_TRUE(openMenu());
  EXPECT_EQ(icon(), "lock.fill");
}

TEST_F(AppDelegateMenuTest, TheIconFollowsTheGuardAtOnceWhileTheMenuIsOpen) {
  beginWithOpenMenu();
  ASSERT_TRUE(press("Pin Dock"));
  letBlockingRunAway();
  ASSERT_FALSE(model().isGuardRunning());
  EXPECT_TRUE(isOpen());
  EXPECT_EQ(icon(), "lock.open");
}

TEST_F(AppDelegateMenuTest, AnOpenMenuShowsThatTheGuardHasStoppedByItself) {
  beginWithOpenMenu();
  ASSERT_TRUE(press("Pin Dock"));
  ASSERT_EQ(row("Pin Dock"), "lock | Pin Dock | on");
  letBlockingRunAway();
  ASSERT_TRUE(isOpen());
  EXPECT_EQ(row("Pin Dock"), "lock | Pin Dock | off");
}

TEST_F(AppDelegateMenuTest, ARowStaysWhereItIsThroughItsOwnClick) {
  beginWithOpenMenu();
  const auto before = views();
  ASSERT_TRUE(press("Pin Dock"));
  ASSERT_EQ(row("Pin Dock"), "lock | Pin Dock | on");
  EXPECT_EQ(views(), before);
}

TEST_F(AppDelegateMenuTest, ADisplayMoreOrLessLeavesTheOtherRowsWhereTheyAre) {
  beginWithOpenMenu();
  const auto two = views();
  desk::attach(machine, desk::monitorAbove());
  ASSERT_TRUE(openMenu());
  auto three = views();
  ASSERT_EQ(three.size(), two.size() + 1);
  constexpr std::ptrdiff_t afterTheDisplays = 6;
  three.erase(three.begin() + afterTheDisplays);
  EXPECT_EQ(three, two);
  desk::detach(machine, 2);
  ASSERT_TRUE(openMenu());
  EXPECT_EQ(views(), two);
  EXPECT_EQ(row("Wall"), "display | Wall");
  EXPECT_EQ(row("Studio"), "no row Studio");
}

TEST_F(AppDelegateMenuTest, WhatClosesTheMenuIsDoneWhenTheClickIsOver) {
  beginWithOpenMenu();
  moveTo(middleOf("Open Window"));
  hand.pressButton();
  machine.mouse.releaseButton();
  EXPECT_FALSE(isOpen());
  EXPECT_FALSE(desk::Surfaces(server()).isOpen("main"));
  machine.runDue();
  EXPECT_TRUE(desk::Surfaces(server()).isOpen("main"));
}

TEST_F(AppDelegateMenuTest, SwitchesFlipInPlaceAndLeaveTheMenuOpen) {
  beginWithOpenMenu();
  ASSERT_TRUE(press("Pin Dock"));
  EXPECT_TRUE(isOpen());
  EXPECT_EQ(row("Pin Dock"), "lock | Pin Dock | on");
  EXPECT_EQ(icon(), "lock.fill");
  ASSERT_TRUE(press("Open at Login"));
  EXPECT_TRUE(isOpen());
  EXPECT_EQ(row("Open at Login"), "power | Open at Login | on");
  ASSERT_TRUE(press("Pin Dock"));
  EXPECT_EQ(row("Pin Dock"), "lock | Pin Dock | off");
  EXPECT_EQ(icon(), "lock.open");
}

TEST_F(AppDelegateMenuTest, OpenAtLoginIsSwitchedOffAgainFromTheMenu) {
  machine.loginItem.status = appkit::LoginItem::Status::enabled;
  beginWithOpenMenu();
  ASSERT_EQ(row("Open at Login"), "power | Open at Login | on");
  ASSERT_TRUE(press("Open at Login"));
  EXPECT_EQ(machine.loginItem.status, appkit::LoginItem::Status::notRegistered);
  EXPECT_EQ(row("Open at Login"), "power | Open at Login | off");
  ASSERT_TRUE(press("Open at Login"));
  EXPECT_EQ(machine.loginItem.status, appkit::LoginItem::Status::enabled);
}

TEST_F(AppDelegateMenuTest, PinningAndPreventingExcludeEachOther) {
  beginWithOpenMenu();
  for (int round = 0; round < 2; ++round) {
    ASSERT_TRUE(press("Pin Dock"));
    EXPECT_EQ(row("Pin Dock"), "lock | Pin Dock | on");
    EXPECT_EQ(row("Prevent Dock Pop-Up"), "eye.slash | Prevent Dock Pop-Up | off");
    EXPECT_EQ(application.snapshot().guard.zones.size(), 1U);
    ASSERT_TRUE(press("Prevent Dock Pop-Up"));
    EXPECT_EQ(row("Pin Dock"), "lock | Pin Dock | off");
    EXPECT_EQ(row("Prevent Dock Pop-Up"), "eye.slash | Prevent Dock Pop-Up | on");
    EXPECT_EQ(application.snapshot().guard.zones.size(), 2U);
    EXPECT_EQ(icon(), "lock.fill");
  }
}

TEST_F(AppDelegateMenuTest, ALoginItemThatCannotBeRegisteredStaysOff) {
  machine.loginItem.error = "Not today";
  beginWithOpenMenu();
  ASSERT_TRUE(press("Open at Login"));
  EXPECT_EQ(row("Open at Login"), "power | Open at Login | off");
  EXPECT_EQ(model().launchAtLoginErrorMessage().value(), "Not today");
}

TEST_F(AppDelegateMenuTest, ChoosingADisplayWhilePinnedMovesMarkAndGuardAtOnce) {
  beginWithOpenMenu();
  ASSERT_TRUE(press("Pin Dock"));
  ASSERT_DOUBLE_EQ(application.snapshot().guard.zones.at(0).rect.origin.x, 1920);
  ASSERT_TRUE(press("Studio"));
  EXPECT_FALSE(isOpen());
  EXPECT_EQ(row("Studio"), "display | Studio | selected");
  EXPECT_EQ(row("Display (Main)"), "display | Display (Main)");
  ASSERT_EQ(application.snapshot().guard.zones.size(), 1U);
  EXPECT_DOUBLE_EQ(application.snapshot().guard.zones[0].rect.origin.x, 0);
}

TEST_F(AppDelegateMenuTest, ASwitchWaitsForThePermissionAndTheGuard) {
  attachTwoDisplays();
  application.launch();
  model().refreshDisplays();
  model().setAppLanguage(OrvaneLanguage::system);
  machine.runDue();
  EXPECT_TRUE(pressRow("Pin Dock"));
  EXPECT_TRUE(server().modal.isRunning());
  EXPECT_EQ(row("Pin Dock"), "lock | Pin Dock | off");
  EXPECT_EQ(icon(), "lock.open");
}

TEST_F(AppDelegateMenuTest, OpenWindowClosesTheMenuShowsTheWindowAndActivates) {
  beginWithOpenMenu();
  ASSERT_TRUE(press("Open Window"));
  EXPECT_FALSE(isOpen());
  EXPECT_TRUE(desk::Surfaces(server()).isOpen("main"));
  EXPECT_FALSE(desk::Surfaces(server()).isOpen("settings"));
  EXPECT_TRUE(server().focus.isActive());
}

TEST_F(AppDelegateMenuTest, WindowsComeInFrontOfThoseOfOtherApplications) {
  begin();
  application.systemSettings().open();
  ASSERT_FALSE(server().focus.isActive());
  ASSERT_TRUE(openMenu());
  ASSERT_TRUE(press("Open Window"));
  EXPECT_EQ(server().windows().back()->className, "OrvaneWindow");
  application.systemSettings().open();
  ASSERT_EQ(server().windows().back()->className, "SystemSettings");
  ASSERT_TRUE(openMenu());
  ASSERT_TRUE(press("Settings"));
  EXPECT_EQ(server().windows().back()->className, "OrvaneSettingsWindow");
  EXPECT_EQ(server().windows().front()->className, "SystemSettings");
}

TEST_F(AppDelegateMenuTest, SettingsClosesTheMenuAndShowsTheSettings) {
  beginWithOpenMenu();
  ASSERT_TRUE(press("Settings"));
  EXPECT_FALSE(isOpen());
  EXPECT_TRUE(desk::Surfaces(server()).isOpen("settings"));
}

TEST_F(AppDelegateMenuTest, ActionsBringTheIconUpToDate) {
  for (const char* const title : {"Open Window", "Settings"}) {
    begin();
    ASSERT_TRUE(openMenu());
    ASSERT_TRUE(press("Pin Dock"));
    // Stopped by somebody else; no time passes in which the timer could tell the icon.
    model().toggleLock();
    EXPECT_EQ(icon(), "lock.fill");
    ASSERT_TRUE(press(title));
    EXPECT_EQ(icon(), "lock.open") << title;
    application.crash();
    desk::detach(machine, 1);
    desk::detach(machine, 2);
  }
}

TEST_F(AppDelegateMenuTest, QuitClosesTheMenuAndEndsTheApplication) {
  beginWithOpenMenu();
  ASSERT_TRUE(press("Quit"));
  EXPECT_FALSE(server().menus.isOpen());
  EXPECT_FALSE(application.isRunning());
}

TEST_F(AppDelegateMenuTest, TheMainDisplayIsMarkedInTheLanguageOfTheMenu) {
  store("appLanguage", std::string("chinese"));
  beginWithOpenMenu();
  EXPECT_EQ(row("内建显示器 （主要）"), "display | 内建显示器 （主要） | selected");
}

TEST_F(AppDelegateMenuTest, HoveringHighlightsDisplaysAndActionsButNoSwitch) {
  beginWithOpenMenu();
  moveTo({600, 600});
  rememberIdleDrawings();
  for (const char* const title : {"Display (Main)", "Studio", "Open Window", "Settings", "Quit"}) {
    moveTo(middleOf(title));
    EXPECT_TRUE(isHighlighted(title)) << title;
    moveTo({600, 600});
    EXPECT_FALSE(isHighlighted(title)) << title;
  }
  for (const char* const title : {"Open at Login", "Prevent Dock Pop-Up", "Pin Dock"}) {
    moveTo(middleOf(title));
    EXPECT_FALSE(isHighlighted(title)) << title;
  }
}

TEST_F(AppDelegateMenuTest, AClickAnywhereOnARowRunsIt) {
  beginWithOpenMenu();
  for (const double x : {4.0, 204.0}) {
    click({server().menus.frame().origin.x + x, middleOf("Pin Dock").y});
    EXPECT_EQ(row("Pin Dock"), x < 100 ? "lock | Pin Dock | on" : "lock | Pin Dock | off");
  }
}

TEST_F(AppDelegateMenuTest, ArrowsReturnAndSpaceWorkOnRowsAndPassOverDisabledOnes) {
  beginWithOpenMenu();
  key(ui::Key::down);
  key(ui::Key::down);
  key(ui::Key::down);
  key(ui::Key::space);
  EXPECT_TRUE(isOpen());
  EXPECT_EQ(row("Pin Dock"), "lock | Pin Dock | on");
  // Over the separator and the header to the second display.
  key(ui::Key::down);
  key(ui::Key::down);
  key(ui::Key::enter);
  EXPECT_FALSE(isOpen());
  EXPECT_EQ(row("Studio"), "display | Studio | selected");
}

TEST_F(AppDelegateMenuTest, EscapeAndAClickOutsideCloseItAndChangeNothing) {
  beginWithOpenMenu();
  key(ui::Key::down);
  key(ui::Key::escape);
  EXPECT_FALSE(isOpen());
  ASSERT_TRUE(openMenu());
  click({600, 600});
  EXPECT_FALSE(isOpen());
  EXPECT_FALSE(model().isGuardRunning());
}

TEST_F(AppDelegateMenuTest, RowsThatAreKeptOutliveTheApplicationWithoutHarm) {
  begin();
  model().refreshDisplays();
  std::vector<std::function<void()>> actions;
  for (const appkit::MenuItem& item : server().statusBar.item()->menu->items) {
    actions.push_back(item.action);
  }
  application.terminate();
  const std::int64_t writes = machine.userDefaults.writeCount();
  for (const auto& action : actions) {
    if (action) {
      action();
    }
  }
  machine.runDue();
  EXPECT_EQ(machine.userDefaults.writeCount(), writes);
  EXPECT_TRUE(server().windows().empty());
}

}  // namespace
}  // namespace orvane
