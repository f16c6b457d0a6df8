// The entry of the application: it puts the parts together that do not know each other, and owns
// them for the life of the process, the same on every platform.
#pragma once

#include <optional>

#include "Orvane/app/AppDelegate.hpp"
#include "Orvane/app/TapWatch.hpp"
#include "Orvane/base/Signal.hpp"
#include "Orvane/platform/appkit/Activity.hpp"

namespace orvane {

/// Main thread only.
class OrvaneApp {
 public:
  /// To be called once in a process, before the platform says that the application has launched.
  /// No window is made; all are opened on demand.
  static void install();

 private:
  void didFinishLaunching();
  void willTerminate();
  void guardChanged();

  AppDelegate delegate_;
  std::optional<TapWatch> tapWatch_;
  Subscription guardChanges_;
  /// While the guard runs: every movement of the pointer waits for this process, and the system
  /// would slow down one without a window.
  std::optional<appkit::Activity> activity_;
};

}  // namespace orvane
