// The floating guide that tells what to switch on, and looks once a second whether it has been.
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
  /// The guide at one moment; without more said, one that has not been shown.
  struct Snapshot {
    PermissionGuideState state = PermissionGuideState::checking;
    bool isVisible = false;
    /// It looks for the permission.
    bool isPolling = false;
  };

  /// In points.
  static constexpr CGSize contentSize{360, 500};

  OrvanePermissionGuideWindowController();

  /// The one controller of the process, created with its panel when it is first asked for.
  static OrvanePermissionGuideWindowController& shared();
  /// Of the one controller; creates none.
  [[nodiscard]] static Snapshot snapshot();

  /// Opens the guide, or opens it again, and starts looking for the permission. `onGranted` takes
  /// the place of an earlier callback and is called once, when the permission is seen; the guide
  /// closes itself a second and a half later, unless it has been shown again by then.
  void show(std::function<void()> onGranted);
  /// Closes the guide and stops looking; `onGranted` is dropped.
  void close();

  [[nodiscard]] const appkit::Window& panel() const { return panel_; }

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
  /// How often the guide has been shown; tells a success from the next showing.
  std::uint64_t showCount_ = 0;
  std::function<void()> onGranted_;
  Lifetime lifetime_;
};

}  // namespace orvane
