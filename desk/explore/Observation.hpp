// Observation is the state of machine and application after a script line: what the application
// reports and shows, and what the machine stores and counts.
#pragma once

#include <array>
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
#include "desk/explore/Stored.hpp"

namespace orvane::desk::explore {

struct Observation {
  std::int64_t now = 0;
  bool isLaunched = false;
  bool isTrusted = false;
  bool isModal = false;
  bool isQueueHeld = false;
  bool isMenuOpen = false;
  bool isStatusMenuOpen = false;
  bool isChangingTogether = false;
  std::size_t displayCount = 0;
  /// In global coordinates.
  CGPoint pointer{};
  std::size_t tapCount = 0;
  /// How many links were opened since the machine was switched on.
  std::size_t linkCount = 0;
  bool isTapEnabled = false;
  Stored stored;

  // The rest is valid only while the application runs.
  OrvaneSnapshot snapshot;
  bool isGuardRunning = false;
  /// The guard has no tap but observes the displays.
  bool isGuardWaiting = false;
  bool isUnlocked = false;
  bool hasPermission = false;
  OrvaneStatus status = OrvaneStatus::unlocked;
  std::int64_t blockedCount = 0;
  std::string icon;
  std::string iconValue;
  /// True also while the application is hidden.
  bool isGuideOpen = false;
  bool isGuidePolling = false;
  PermissionGuideState guideState = PermissionGuideState::checking;
  // True also while they are minimised or hidden.
  bool isMainOpen = false;
  bool isSettingsOpen = false;
  bool isMainMinimised = false;
  /// The surface of the key window; empty without one.
  std::string keySurface;
  std::size_t messageCount = 0;
  std::string lastMessage;
  /// When the last two messages arrived, in nanoseconds, if both report blocks.
  std::optional<std::array<std::int64_t, 2>> reportTimes;
  /// To screen readers, since the launch.
  std::string lastAnnouncement;
  std::size_t announcementCount = 0;
  /// The semantics trees of the application's visible surfaces, by name.
  std::map<std::string, ui::SemanticsNode> trees;
  /// The frames of these surfaces in global coordinates, by name.
  std::map<std::string, CGRect> frames;

  [[nodiscard]] static Observation of(const Machine& machine, const ApplicationHost& application);
  [[nodiscard]] bool shows(const std::string& surface) const { return trees.contains(surface); }
  void addTo(Fingerprint& fingerprint) const;
};

/// The menu lists the displays after this number of switches.
constexpr std::size_t menuSwitches = 3;

/// Every node of the tree, parents before their children.
[[nodiscard]] std::vector<const ui::SemanticsNode*> elementsOf(const ui::SemanticsNode& root);

}  // namespace orvane::desk::explore
