// The application from launch to termination: its icon, its windows, and the status item's menu
// with its rows and their actions.
#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "Orvane/permission/OrvanePermissionAlert.hpp"
#include "tests/app/AppFixture.hpp"

namespace orvane {
namespace {

using AppDelegateTest = AppFixture;

TEST_F(AppDelegateTest, TheFirstLaunchShowsAnOpenLockAndStoresNothing) {
  attachTwoDisplays();
  application.launch();
  EXPECT_EQ(machine.application.activationPolicy, appkit::ActivationPolicy::accessory);
  EXPECT_EQ(icon(), "lock.open");
  EXPECT_TRUE(server().windows().empty());
  EXPECT_TRUE(machine.userDefaults.values().empty());
  EXPECT_EQ(machine.runLoop.timerCount(), 2U) << "of the icon and of the tap watch";
  EXPECT_FALSE(server().focus.isActive());
}

TEST_F(AppDelegateTest, TheIconFollowsTheGuardWithinASecondWhileAnAlertIsUp) {
  begin();
  model().refreshDisplays();
  model().toggleSelectedDisplayLock();
  machine.advance(1);
  ASSERT_EQ(icon(), "lock.fill");
  OrvanePermissionAlert::show(nullptr);
  machine.runDue();
  ASSERT_TRUE(server().modal.isRunning());
  // The display to which the Dock is pinned.
  desk::detach(machine, 1);
  ASSERT_FALSE(model().isGuardRunning());
  machine.advance(1);
  EXPECT_TRUE(server().modal.isRunning());
  EXPECT_EQ(icon(), "lock.open");
}

TEST_F(AppDelegateTest, AnotherLanguageRebuildsTheMenuWithTheDisplaysNewNames) {
  begin();
  ASSERT_TRUE(openMenu());
  EXPECT_EQ(row("Display (Main)"), "display | Display (Main) | selected");
  model().setAppLanguage(OrvaneLanguage::chinese);
  machine.runDue();
  EXPECT_TRUE(server().menus.isStatusMenuOpen());
  EXPECT_EQ(menuText(),
            "power | 开机自动运行 | off\n-\neye.slash | 防止 Dock 弹出 | off\n"
            "lock | 固定 Dock | off\n-\n# 选择显示器\n"
            "display | 内建显示器 （主要） | selected\ndisplay | Studio\n-\n"
            "macwindow | 打开窗口\ngearshape | 设置\npower | 退出\n");
}

TEST_F(AppDelegateTest, AfterWillTerminateItHasNoTimersAndRebuildsNothing) {
  begin();
  model().setAppLanguage(OrvaneLanguage::chinese);
  ASSERT_EQ(machine.runLoop.pendingTaskCount(), 1U) << "the task that rebuilds the menu";
  machine.runDue();
  ASSERT_EQ(machine.runLoop.timerCount(), 2U);
  // The process ends with the next turn of the run loop.
  server().application.terminate();
  ASSERT_TRUE(application.isRunning());
  EXPECT_EQ(machine.runLoop.timerCount(), 0U);
  model().setAppLanguage(OrvaneLanguage::english);
  EXPECT_EQ(machine.runLoop.pendingTaskCount(), 0U);
  machine.runDue();
  EXPECT_FALSE(application.isRunning());
}

class AppDelegateMenuTest : public AppFixture {
 protected:
  void beginWithOpenMenu() {
    begin();
    ASSERT_TRUE(openMenu());
  }
  [[nodiscard]] static bool isOpen() { return server().menus.isStatusMenuOpen(); }
  /// Of all rows, from top to bottom.
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
};

TEST_F(AppDelegateMenuTest, ShowsSwitchesThenDisplaysThenActions) {
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
      // The menu is as wide as its widest row, so the width of each view counts.
      EXPECT_DOUBLE_EQ(shown.view->frame().size.width, 208) << item.title;
      EXPECT_DOUBLE_EQ(shown.view->frame().size.height, height) << item.title;
      EXPECT_FALSE(item.title.empty());
    }
  }
  EXPECT_EQ(views, 9);
}

TEST_F(AppDelegateMenuTest, ItsItemsAreOnForSwitchesThatAreOnAndForTheChosenDisplay) {
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
  const std::vector<appkit::MenuItem> items = server().menus.menu()->items;
  for (const std::string mode : {"Pin Dock", "Prevent Dock Pop-Up"}) {
    std::ranges::find(items, mode, &appkit::MenuItem::title)->action();
    EXPECT_EQ(itemsThatAreOn(), (std::vector<std::string>{mode, "Display (Main)"})) << "at once";
  }
}

TEST_F(AppDelegateMenuTest, WithoutDisplaysADisabledRowSaysSo) {
  machine.permission.setTrusted(true);
  application.launch();
  EXPECT_EQ(menuText(),
            "power | Open at Login | off\n-\neye.slash | Prevent Dock Pop-Up | off\n"
            "lock | Pin Dock | off | disabled\n-\n# Choose Display\n"
            "display.trianglebadge.exclamationmark | No displays detected | disabled\n-\n"
            "macwindow | Open Window\ngearshape | Settings\npower | Quit\n");
}

TEST_F(AppDelegateMenuTest, AnAliasChosenWhileTheMenuIsOpenMarksNoRowUntilItReopens) {
  beginWithOpenMenu();
  ASSERT_EQ(row("Display (Main)"), "display | Display (Main) | selected");
  model().selectDisplay("2");
  // A switch rebuilds the menu without listing the displays.
  ASSERT_TRUE(press("Open at Login"));
  ASSERT_EQ(model().selectedDisplayID().value(), "2");
  ASSERT_EQ(model().selectedDisplay()->name, "Studio");
  EXPECT_EQ(row("Display (Main)"), "display | Display (Main)");
  EXPECT_EQ(row("Studio"), "display | Studio");
  ASSERT_TRUE(openMenu());
  EXPECT_EQ(row("Studio"), "display | Studio | selected");
}

TEST_F(AppDelegateMenuTest, AddingOrRemovingADisplayKeepsTheOtherRows) {
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

TEST_F(AppDelegateMenuTest, AnActionRunsAfterTheMenuHasClosed) {
  beginWithOpenMenu();
  moveTo(middleOf("Open Window"));
  hand.pressButton();
  machine.mouse.releaseButton();
  EXPECT_FALSE(isOpen());
  EXPECT_FALSE(AppFixture::isOpen("main"));
  machine.runDue();
  EXPECT_TRUE(AppFixture::isOpen("main"));
}

TEST_F(AppDelegateMenuTest, SwitchesLeaveTheMenuOpenAndItsViewsInPlace) {
  beginWithOpenMenu();
  const auto before = views();
  ASSERT_TRUE(press("Pin Dock"));
  EXPECT_TRUE(isOpen());
  EXPECT_EQ(row("Pin Dock"), "lock | Pin Dock | on");
  EXPECT_EQ(icon(), "lock.fill");
  EXPECT_EQ(views(), before);
  ASSERT_TRUE(press("Open at Login"));
  EXPECT_TRUE(isOpen());
  EXPECT_EQ(row("Open at Login"), "power | Open at Login | on");
  ASSERT_TRUE(press("Open at Login"));
  EXPECT_EQ(row("Open at Login"), "power | Open at Login | off");
  ASSERT_TRUE(press("Pin Dock"));
  EXPECT_EQ(row("Pin Dock"), "lock | Pin Dock | off");
  EXPECT_EQ(icon(), "lock.open");
}

TEST_F(AppDelegateMenuTest, ChoosingADisplayWhilePinnedRestartsTheGuardAtOnce) {
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

TEST_F(AppDelegateMenuTest, ArrowsReturnAndSpaceOperateTheRows) {
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

TEST_F(AppDelegateMenuTest, ActionsOfRetainedItemsDoNothingAfterTheApplicationsEnd) {
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
