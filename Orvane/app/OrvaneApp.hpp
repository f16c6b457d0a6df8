// The application's entry point on every platform: connects the parts that do not know each other,
// and owns them for the life of the process.
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
  /// To be called once per process, before the platform reports that the application has launched.
  /// Creates no window; each is created on demand.
  static void install();

 private:
  void didFinishLaunching();
  void willTerminate();
  void guardChanged();

  AppDelegate delegate_;
  std::optional<TapWatch> tapWatch_;
  Subscription guardChanges_;
  /// Present while the guard runs: the system slows down a process without windows, and every
  /// movement of the pointer waits for this one.
  std::optional<appkit::Activity> activity_;
};

}  // namespace orvane
