// The floating guide to System Settings, which polls for the permission once a second.
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
  /// The state of the guide at one moment. The defaults describe a guide that was never shown.
  struct Snapshot {
    PermissionGuideState state = PermissionGuideState::checking;
    bool isVisible = false;
    /// It checks for the permission once a second.
    bool isPolling = false;
    /// The panel's, in window-system coordinates.
    CGRect frame{};
  };

  OrvanePermissionGuideWindowController();

  /// The process's only controller, created with its panel on first use.
  [[nodiscard]] static OrvanePermissionGuideWindowController& shared();
  /// Does not create the controller.
  [[nodiscard]] static Snapshot snapshot();

  /// Shows the guide and starts polling for the permission, from the beginning if it is already
  /// shown. `onGranted`, which may be null, replaces an earlier callback and is called once, when
  /// the permission is detected; the guide closes a second and a half later, unless it has been
  /// shown again by then.
  void show(std::function<void()> onGranted);
  /// Closes the guide, stops polling and drops `onGranted`.
  void close();

 private:
  void setState(PermissionGuideState state);
  void positionGuideWindow();
  void startChecking();
  void check();
  void handleSuccess();
  /// A permission that was granted since the last poll counts.
  void closeForTheUser();

  PermissionGuideState state_ = PermissionGuideState::checking;
  appkit::Window panel_;
  std::optional<appkit::Timer> checkTimer_;
  std::optional<CFAbsoluteTime> startTime_;
  /// The number of times the guide has been shown.
  std::uint64_t showCount_ = 0;
  std::function<void()> onGranted_;
  Lifetime lifetime_;
};

}  // namespace orvane
