// The model's state, summarised in one value.
#pragma once

namespace orvane {

enum class OrvaneStatus {
  /// The guard is not running.
  unlocked,
  /// The guard is running and nothing overrides it.
  locked,
  /// The guard is running, but the unlock modifier is held.
  temporarilyUnlocked,
  /// The Dock's screen edge cannot be used for guarding.
  needsCheck,
  /// The display to which the Dock is pinned is not attached.
  targetMissing,
  /// The Accessibility permission is missing.
  permissionRequired,
};

}  // namespace orvane
