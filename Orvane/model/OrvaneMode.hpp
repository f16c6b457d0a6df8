// The mode of the guard.
#pragma once

namespace orvane {

enum class OrvaneMode {
  /// The guard does not run.
  off,
  /// The Dock may appear on the chosen display only.
  pinning,
  /// The Dock may appear on no display.
  preventing,
};

}  // namespace orvane
