// The floating guide that shows what to turn on, and polls once a second whether it has been.
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
/// How long the success stays visible.
constexpr double closeAfterSuccessSeconds = 1.5;
/// The guide's distance to the right of the screen's centre, and its minimum distance from the
/// screen's edges, in points.
constexpr double distanceFromMiddle = 320;
constexpr double screenMargin = 20;

ProcessShared<OrvanePermissionGuideWindowController>& sharedController() {
  static ProcessShared<OrvanePermissionGuideWindowController> shared;
  return shared;
}

appkit::Window makeGuidePanel() {
  const CGSize size = OrvanePermissionGuideWindowController::contentSize;
  appkit::Window panel(appkit::WindowKind::panel, CGRectMake(0, 0, size.width, size.height),
                       appkit::StyleMask::nonactivatingPanel);
  panel.setClassName("OrvaneGuidePanel");
  panel.setMovableByWindowBackground(true);
  // By default a panel without a title bar refuses, and no key would reach its controls.
  panel.setCanBecomeKeyWindow(true);
  // Becoming a floating panel changes the level too, so it comes first.
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
std::optional<Screen> screenForTheGuide() {
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
    return OrvanePermissionGuideView{.state = state_,
                                     .onClose = lifetime_.whileAlive([this] { close(); })};
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
  // Even in the same state: the language of the texts may have changed.
  if (auto view = panel_.contentView()) {
    view->setNeedsUpdate();
  }
}

void OrvanePermissionGuideWindowController::positionGuideWindow() {
  const std::optional<Screen> screen = screenForTheGuide();
  if (!screen) {
    panel_.center();
    return;
  }
  const CGRect visible = screen->visibleFrame();
  const CGSize size = panel_.frame().size;
  // The upper clamp comes last: on a screen too small for the panel it wins.
  const double x = std::min(
      std::max(CGRectGetMidX(visible) + distanceFromMiddle, CGRectGetMinX(visible) + screenMargin),
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
  // Close this showing only: the callback or a later request may show the guide again.
  const auto closeThisShowing = [this, showing = showCount_] {
    if (showing == showCount_) {
      close();
    }
  };
  if (const auto granted = onGranted_) {
    granted();
  }
  appkit::MainQueue::asyncAfter(closeAfterSuccessSeconds, lifetime_.whileAlive(closeThisShowing));
}

void OrvanePermissionGuideWindowController::close() {
  panel_.close();
  checkTimer_.reset();
  onGranted_ = nullptr;
}

}  // namespace orvane
