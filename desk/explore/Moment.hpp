// Moment is what can be seen from outside when the machine is at rest: of the application what
// anybody can ask it and what it shows, and of the machine what it stores and counts.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "Orvane/app/OrvaneSnapshot.hpp"
#include "Orvane/permission/PermissionGuideState.hpp"
#include "Orvane/ui/views/Semantics.hpp"
#include "desk/application/ApplicationHost.hpp"
#include "desk/explore/Fingerprint.hpp"
#include "desk/explore/Situation.hpp"

namespace orvane::desk::explore {

/// The settings as they are stored, read by the explorer's own rules.
struct Stored {
  std::optional<std::string> selected;
  bool wants = false;
  bool prevents = false;
  std::string modifier;
  std::string language;

  [[nodiscard]] static Stored of(const UserDefaultsStore& defaults);
  [[nodiscard]] Wish wish() const { return {prevents, selected.value_or("")}; }
  /// The bits of the key that unlocks.
  [[nodiscard]] std::uint64_t unlockMask() const;
  bool operator==(const Stored&) const = default;
};

struct Moment {
  std::int64_t now = 0;
  bool isLaunched = false;
  bool isTrusted = false;
  bool isModal = false;
  bool isQueueHeld = false;
  bool isMenuOpen = false;
  bool isStatusMenuOpen = false;
  bool isChangingTogether = false;
  std::size_t displayCount = 0;
  std::size_t tapCount = 0;
  bool isTapEnabled = false;
  Stored stored;

  /// The rest holds for the running application only.
  OrvaneSnapshot snapshot;
  bool isGuardRunning = false;
  /// The guard has no tap and follows the displays.
  bool isGuardWaiting = false;
  bool isTapRefused = false;
  bool isDoubted = false;
  bool isUnlocked = false;
  bool isRestoreBlocked = false;
  bool hasPermission = false;
  OrvaneStatus status = OrvaneStatus::unlocked;
  std::int64_t blockedCount = 0;
  std::string icon;
  std::string iconValue;
  /// It is on the screen, or hidden with the application.
  bool isGuideOpen = false;
  bool isGuidePolling = false;
  PermissionGuideState guideState = PermissionGuideState::checking;
  bool isMainMinimised = false;
  std::size_t messageCount = 0;
  std::string lastMessage;
  /// What a screen reader finds on each of the application's surfaces that is shown.
  std::map<std::string, ui::SemanticsNode> trees;

  [[nodiscard]] static Moment of(const Machine& machine, const ApplicationHost& application);
  [[nodiscard]] bool shows(const std::string& surface) const { return trees.contains(surface); }
  void addTo(Fingerprint& fingerprint) const;
};

/// Every element of the tree, parents before their children.
[[nodiscard]] std::vector<const ui::SemanticsNode*> elementsOf(const ui::SemanticsNode& root);

}  // namespace orvane::desk::explore
