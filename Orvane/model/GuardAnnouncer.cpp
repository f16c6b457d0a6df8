// What is told of each state, and when the guard counts as blocked.
#include "Orvane/model/GuardAnnouncer.hpp"

#include <utility>

#include "Orvane/permission/OrvaneAccessibilityPermission.hpp"
#include "Orvane/platform/appkit/Accessibility.hpp"

namespace orvane {

void GuardAnnouncer::update(const OrvaneModel& model) {
  Told now = tell(model);
  if (now == told_) {
    return;
  }
  // Whoever gives up on a guard that was blocked has stopped nothing.
  const bool isSilent = now.state == State::stopped && told_.state == State::blocked;
  told_ = std::move(now);
  if (!isSilent) {
    appkit::Accessibility::announce(text(told_.state, model));
  }
}

GuardAnnouncer::Told GuardAnnouncer::tell(const OrvaneModel& model) const {
  // Someone wants the guard: it runs or did until now, it was to come back, or the permission is
  // being asked for.
  const bool hasRun = told_.state == State::pinning || told_.state == State::preventing;
  const bool isWanted = model.isGuardRunning() || hasRun || model.isRestoreBlocked() ||
                        OrvaneAccessibilityPermission::isChecking();
  if (isWanted && !model.hasAccessibilityPermission().value()) {
    return {State::blocked, {}};
  }
  if (!model.isGuardRunning()) {
    return {};
  }
  if (model.hidesDockOnAllDisplays().value()) {
    return {State::preventing, {}};
  }
  return {State::pinning, model.selectedDisplayID().value().value_or("")};
}

std::string GuardAnnouncer::text(State state, const OrvaneModel& model) {
  const OrvaneLanguage language = model.appLanguage().value();
  switch (state) {
    case State::stopped:
      return language.localized("The Dock is no longer guarded", "Dock 守卫已关闭");
    case State::pinning: {
      const auto display = model.selectedDisplay();
      const std::string name = display ? display->name : "";
      return language.localized("The Dock is pinned to " + name, "Dock 已固定到" + name);
    }
    case State::preventing:
      return language.localized("The Dock is kept from popping up", "已防止 Dock 弹出");
    case State::blocked:
      return language.localized("The Accessibility permission is missing; the Dock is not guarded",
                                "缺少辅助功能权限，Dock 未受守卫");
  }
  return {};
}

}  // namespace orvane
