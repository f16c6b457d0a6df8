// The guard's messages in Chinese; the other tests expect them in English.
#include <gtest/gtest.h>

#include "Orvane/guard/DockMouseGuardMessages.hpp"
#include "tests/support/MachineFixture.hpp"

namespace orvane {
namespace {

using namespace DockMouseGuardMessages;

using DockMouseGuardMessagesTest = desk::MachineFixture;

TEST_F(DockMouseGuardMessagesTest, AreChineseInChinese) {
  store("appLanguage", "chinese");
  EXPECT_EQ(permissionMissing(), "尚未开启辅助功能权限，Dock 锁定未启动");
  EXPECT_EQ(noTriggerZones(), "没有可用触发区。请检查目标显示器、Dock 位置和显示器排列");
  EXPECT_EQ(tapRefused(), "无法创建 CGEventTap。请确认已开启辅助功能权限");
  EXPECT_EQ(started(3), "鼠标守卫已启动，触发区数量：3");
  EXPECT_EQ(targetUnavailable(), "目标显示器不存在，鼠标守卫已暂停");
  EXPECT_EQ(blocked(42), "已阻止第 42 次 Dock 触发");
}

}  // namespace
}  // namespace orvane
