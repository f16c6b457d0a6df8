// The announcement for each state, and when the guard counts as blocked.
#include "Orvane/model/GuardAnnouncer.hpp"

#include <utility>

#include "Orvane/permission/OrvaneAccessibilityPermission.hpp"
#include "Orvane/platform/appkit/Accessibility.hpp"

namespace orvane {

void GuardAnnouncer::update(const OrvaneModel& model) {
  Announcement next = announcementFor(model);
  if (next == lastAnnounced_) {
    return;
  }
  // Turning off a blocked guard changes nothing for the user, so stay silent.
  const bool isSilent = lastAnnounced_.isBlocked && next == Announcement();
  lastAnnounced_ = std::move(next);
  if (!isSilent) {
    appkit::Accessibility::announce(text(model));
  }
}

GuardAnnouncer::Announcement GuardAnnouncer::announcementFor(const OrvaneModel& model) const {
  // The guard runs or ran until now, it was to be restored, or the permission is being requested.
  const bool isWanted = model.isGuardRunning() || lastAnnounced_.mode != OrvaneMode::off ||
                        model.isRestoreBlocked() || OrvaneAccessibilityPermission::isChecking();
  if (isWanted && !model.hasAccessibilityPermission().value()) {
    return {.isBlocked = true};
  }
  if (model.mode() == OrvaneMode::pinning) {
    // Use the display's own identifier: the next refresh replaces a stored alias.
    const auto display = model.selectedDisplay();
    return {.mode = OrvaneMode::pinning, .displayID = display ? display->id : ""};
  }
  return {.mode = model.mode()};
}

std::string GuardAnnouncer::text(const OrvaneModel& model) const {
  if (lastAnnounced_.isBlocked) {
    return model.localized("The Accessibility permission is missing; the Dock is not guarded",
                           "缺少辅助功能权限，Dock 未受守卫");
  }
  switch (lastAnnounced_.mode) {
    case OrvaneMode::off:
      return model.localized("The Dock is no longer guarded", "Dock 守卫已关闭");
    case OrvaneMode::pinning: {
      const auto display = model.selectedDisplay();
      const std::string name = display ? display->name : "";
      return model.localized("The Dock is pinned to " + name, "Dock 已固定到" + name);
    }
    case OrvaneMode::preventing:
      return model.localized("The Dock is kept from popping up", "已防止 Dock 弹出");
  }
  return {};
}

}  // namespace orvane
