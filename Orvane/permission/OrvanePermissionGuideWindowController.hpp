// The floating guide that shows what to turn on, and polls once a second whether it has been.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "Orvane/base/Lifetime.hpp"
#include "Orvane/permission/PermissionGuideState.hpp"
#include "Orvane/platform/Quartz.hpp"
#include "Orvane/platform/appkit/Timer.hpp"
#include "Orvane/platform/appkit/Window.hpp"

namespace orvane {

/// Main thread only.
class OrvanePermissionGuideWindowController {
 public:
  /// The state of the guide at one moment; by default that of a guide that was never shown.
  struct Snapshot {
    PermissionGuideState state = PermissionGuideState::checking;
    bool isVisible = false;
    /// It checks for the permission once a second.
    bool isPolling = false;
    /// The panel's, in window-system coordinates.
    CGRect frame{};
  };

  /// In points.
  static constexpr CGSize contentSize{360, 500};

  OrvanePermissionGuideWindowController();

  /// The process's only controller, created with its panel on first use.
  static OrvanePermissionGuideWindowController& shared();
  /// Of the process's only controller; creates none.
  [[nodiscard]] static Snapshot snapshot();

  /// Shows the guide, again if need be, and starts polling for the permission. `onGranted` replaces
  /// an earlier callback and is called once, when the permission is detected; the guide closes
  /// itself a second and a half later, unless it has been shown again by then.
  void show(std::function<void()> onGranted);
  /// Closes the guide, stops polling and drops `onGranted`.
  void close();

 private:
  void setState(PermissionGuideState state);
  void positionGuideWindow();
  void startChecking();
  void check();
  void handleSuccess();

  PermissionGuideState state_ = PermissionGuideState::checking;
  appkit::Window panel_;
  std::optional<appkit::Timer> checkTimer_;
  std::optional<CFAbsoluteTime> startTime_;
  /// How often the guide has been shown; distinguishes this showing from the next.
  std::uint64_t showCount_ = 0;
  std::function<void()> onGranted_;
  Lifetime lifetime_;
};

}  // namespace orvane
