// The guard's messages to its owner, in the language that is set when they are composed.
#include "Orvane/guard/DockMouseGuardMessages.hpp"

#include "Orvane/model/OrvaneLanguage.hpp"

namespace orvane::DockMouseGuardMessages {

std::string permissionMissing() {
  return localized("Accessibility permission is not enabled. Dock locking was not started.",
                   "尚未开启辅助功能权限，Dock 锁定未启动");
}

std::string noTriggerZones() {
  return localized(
      "No available trigger zones. Check the target display, Dock position, and display "
      "arrangement.",
      "没有可用触发区。请检查目标显示器、Dock 位置和显示器排列");
}

std::string tapRefused() {
  return localized(
      "Could not create the CGEventTap. Make sure Accessibility permission is enabled.",
      "无法创建 CGEventTap。请确认已开启辅助功能权限");
}

std::string started(std::size_t zoneCount) {
  const std::string count = std::to_string(zoneCount);
  return localized("Mouse guard started. Trigger zones: " + count,
                   "鼠标守卫已启动，触发区数量：" + count);
}

std::string targetUnavailable() {
  return localized("The target display is unavailable. Mouse guard paused.",
                   "目标显示器不存在，鼠标守卫已暂停");
}

std::string blocked(std::int64_t count) {
  const std::string number = std::to_string(count);
  return localized("Blocked Dock trigger " + number + " times",
                   "已阻止第 " + number + " 次 Dock 触发");
}

}  // namespace orvane::DockMouseGuardMessages
