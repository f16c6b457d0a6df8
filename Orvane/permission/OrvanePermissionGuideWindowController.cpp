// The floating guide to System Settings, which polls for the permission once a second.
#include "Orvane/permission/OrvanePermissionGuideWindowController.hpp"

#include <algorithm>
#include <utility>
#include <vector>

#include "Orvane/base/ProcessShared.hpp"
#include "Orvane/permission/OrvanePermissionGuideView.hpp"
#include "Orvane/platform/appkit/Application.hpp"
#include "Orvane/platform/appkit/HostingView.hpp"
#include "Orvane/platform/appkit/MainQueue.hpp"
#include "Orvane/platform/appkit/Screen.hpp"

namespace orvane {

namespace {

using appkit::Application;
using appkit::Screen;

constexpr double pollSeconds = 1.0;
constexpr double timeoutSeconds = 10.0;
/// From the detection of the permission to the guide's end.
constexpr double closeAfterSuccessSeconds = 1.5;
/// In points: from the screen's centre to the guide's left edge, and the minimum distance from the
/// screen's edges.
constexpr double distanceFromCentre = 320;
constexpr double screenMargin = 20;

ProcessShared<OrvanePermissionGuideWindowController>& sharedController() {
  static ProcessShared<OrvanePermissionGuideWindowController> shared;
  return shared;
}

appkit::Window makeGuidePanel() {
  appkit::Window panel(
      appkit::WindowKind::panel,
      CGRectMake(0, 0, OrvanePermissionGuideView::width, OrvanePermissionGuideView::height),
      appkit::StyleMask::nonactivatingPanel);
  panel.setClassName("OrvaneGuidePanel");
  panel.setMovableByWindowBackground(true);
  // A panel without a title bar cannot become key by default, and would receive no key events.
  panel.setCanBecomeKeyWindow(true);
  // Before setLevel, because it sets a level of its own.
  panel.setFloatingPanel(true);
  panel.setLevel(appkit::WindowLevel::status);
  panel.setHidesOnDeactivate(false);
  panel.setReleasedWhenClosed(false);
  panel.setCollectionBehavior(
      appkit::CollectionBehavior::moveToActiveSpace | appkit::CollectionBehavior::stationary |
      appkit::CollectionBehavior::fullScreenAuxiliary | appkit::CollectionBehavior::auxiliary);
  panel.setClearBackground();
  panel.setOpaque(false);
  panel.setHasShadow(true);
  return panel;
}

/// The screen under the pointer, else that of the key window, else the main one.
std::optional<Screen> screenForGuide() {
  const CGPoint pointer = Application::mouseLocation();
  const std::vector<Screen> screens = Screen::screens();
  const auto underPointer = std::ranges::find_if(
      screens, [&](const Screen& screen) { return CGRectContainsPoint(screen.frame(), pointer); });
  if (underPointer != screens.end()) {
    return *underPointer;
  }
  if (const auto keyWindow = Application::keyWindow()) {
    if (auto screen = keyWindow->screen()) {
      return screen;
    }
  }
  return Screen::mainScreen();
}

}  // namespace

OrvanePermissionGuideWindowController::OrvanePermissionGuideWindowController()
    : panel_(makeGuidePanel()) {
  appkit::HostingView view([this](const ui::Environment& /*environment*/) -> ui::View {
    return OrvanePermissionGuideView{
        .state = state_, .onClose = lifetime_.whileAlive([this] { closeForTheUser(); })};
  });
  panel_.setContentView(view);
  positionGuideWindow();
}

OrvanePermissionGuideWindowController& OrvanePermissionGuideWindowController::shared() {
  return sharedController().get();
}

OrvanePermissionGuideWindowController::Snapshot OrvanePermissionGuideWindowController::snapshot() {
  if (!sharedController().exists()) {
    return {};
  }
  const OrvanePermissionGuideWindowController& guide = shared();
  return {.state = guide.state_,
          .isVisible = guide.panel_.isVisible(),
          .isPolling = guide.checkTimer_.has_value(),
          .frame = guide.panel_.frame()};
}

void OrvanePermissionGuideWindowController::show(std::function<void()> onGranted) {
  ++showCount_;
  onGranted_ = std::move(onGranted);
  setState(PermissionGuideState::checking);
  positionGuideWindow();
  panel_.orderFrontRegardless();
  panel_.makeKeyWindow();
  startChecking();
}

void OrvanePermissionGuideWindowController::setState(PermissionGuideState state) {
  state_ = state;
  // Unconditionally, because the language may have changed.
  if (auto view = panel_.contentView()) {
    view->setNeedsUpdate();
  }
}

void OrvanePermissionGuideWindowController::positionGuideWindow() {
  const std::optional<Screen> screen = screenForGuide();
  if (!screen) {
    panel_.center();
    return;
  }
  const CGRect visible = screen->visibleFrame();
  const CGSize size = panel_.frame().size;
  // The upper limit is applied last, so it wins on a screen too small for the panel.
  const double x = std::min(
      std::max(CGRectGetMidX(visible) + distanceFromCentre, CGRectGetMinX(visible) + screenMargin),
      CGRectGetMaxX(visible) - size.width - screenMargin);
  const double y = std::min(
      std::max(CGRectGetMidY(visible) - size.height * 0.5, CGRectGetMinY(visible) + screenMargin),
      CGRectGetMaxY(visible) - size.height - screenMargin);
  panel_.setFrameOrigin(CGPointMake(x, y));
}

void OrvanePermissionGuideWindowController::startChecking() {
  checkTimer_.reset();
  startTime_ = CFAbsoluteTimeGetCurrent();
  checkTimer_ = appkit::Timer::repeating(pollSeconds, appkit::RunLoopMode::standard,
                                         lifetime_.whileAlive([this] { check(); }));
}

void OrvanePermissionGuideWindowController::check() {
  if (AXIsProcessTrusted()) {
    handleSuccess();
  } else if (startTime_ && CFAbsoluteTimeGetCurrent() - *startTime_ > timeoutSeconds) {
    setState(PermissionGuideState::timeout);
  }
}

void OrvanePermissionGuideWindowController::handleSuccess() {
  checkTimer_.reset();
  setState(PermissionGuideState::success);
  // The callback or a later request may show the guide again, which must then stay open.
  const auto closeUnlessShownAgain = [this, shown = showCount_] {
    if (shown == showCount_) {
      close();
    }
  };
  if (const auto granted = onGranted_) {
    granted();
  }
  appkit::MainQueue::asyncAfter(closeAfterSuccessSeconds,
                                lifetime_.whileAlive(closeUnlessShownAgain));
}

void OrvanePermissionGuideWindowController::closeForTheUser() {
  const auto shown = showCount_;
  if (checkTimer_ && AXIsProcessTrusted()) {
    handleSuccess();
  }
  if (shown == showCount_) {
    close();
  }
}

void OrvanePermissionGuideWindowController::close() {
  panel_.close();
  checkTimer_.reset();
  onGranted_ = nullptr;
}

}  // namespace orvane
