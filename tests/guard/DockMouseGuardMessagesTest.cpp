// The exact texts of the guard's messages in both languages.
#include <gtest/gtest.h>

#include "Orvane/guard/DockMouseGuardMessages.hpp"
#include "tests/support/MachineFixture.hpp"

namespace orvane {
namespace {

using namespace DockMouseGuardMessages;

class DockMouseGuardMessagesTest : public desk::MachineFixture {};

TEST_F(DockMouseGuardMessagesTest, InEnglish) {
  machine.userDefaults.set("appLanguage", "english");
  EXPECT_EQ(permissionMissing(),
            "Accessibility permission is not enabled. Dock locking was not started.");
  EXPECT_EQ(noTriggerZones(),
            "No available trigger zones. Check the target display, Dock position, and display "
            "arrangement.");
  EXPECT_EQ(tapRefused(),
            "Could not create the CGEventTap. Make sure Accessibility permission is enabled.");
  EXPECT_EQ(started(3), "Mouse guard started. Trigger zones: 3");
  EXPECT_EQ(targetUnavailable(), "The target display is unavailable. Mouse guard paused.");
  EXPECT_EQ(blocked(1), "Blocked Dock trigger 1 times");
  EXPECT_EQ(blocked(1234567890123), "Blocked Dock trigger 1234567890123 times");
}

TEST_F(DockMouseGuardMessagesTest, InChinese) {
  machine.userDefaults.set("appLanguage", "chinese");
  EXPECT_EQ(permissionMissing(), "尚未开启辅助功能权限，Dock 锁定未启动");
  EXPECT_EQ(noTriggerZones(), "没有可用触发区。请检查目标显示器、Dock 位置和显示器排列");
  EXPECT_EQ(tapRefused(), "无法创建 CGEventTap。请确认已开启辅助功能权限");
  EXPECT_EQ(started(3), "鼠标守卫已启动，触发区数量：3");
  EXPECT_EQ(targetUnavailable(), "目标显示器不存在，鼠标守卫已暂停");
  EXPECT_EQ(blocked(42), "已阻止第 42 次 Dock 触发");
}

}  // namespace
}  // namespace orvane
