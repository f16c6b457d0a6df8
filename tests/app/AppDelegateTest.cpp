// The application from launch to termination: its icon, its windows and its settings.
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

}  // namespace
}  // namespace orvane
