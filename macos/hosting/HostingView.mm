// Views of the window system that host a view tree of the kit.
#include "Orvane/platform/appkit/HostingView.hpp"

#import <QuartzCore/QuartzCore.h>

#include <utility>

#include "macos/appkit/NativeView.hpp"
#include "macos/hosting/HostingContainer.hpp"

namespace orvane::appkit {

struct HostingView::Implementation {
  explicit Implementation(RootBuilder buildRoot)
      : container([[OrvaneHostingContainer alloc]
            initWithHostView:[[OrvaneHostView alloc] initWithRoot:std::move(buildRoot)]]),
        outermost(container) {}

  OrvaneHostingContainer* container;
  /// The container, or the backdrop around it.
  NSView* outermost;
};

NSView* nativeView(const HostingView& view) {
  return view.implementation()->outermost;
}

NSView* keyView(const HostingView& view) {
  return view.implementation()->container.hostView;
}

HostingView::HostingView(RootBuilder buildRoot)
    : implementation_(std::make_shared<Implementation>(std::move(buildRoot))) {}

void HostingView::setNeedsUpdate() {
  implementation_->container.hostView.host.invalidate();
}

void HostingView::setFrame(CGRect frame) {
  implementation_->outermost.frame = frame;
}

CGRect HostingView::frame() const {
  return implementation_->outermost.frame;
}

CGSize HostingView::fittingSize() const {
  OrvaneHostView* const view = implementation_->container.hostView;
  __block ui::Size size;
  [view.effectiveAppearance performAsCurrentDrawingAppearance:^{
    size = view.host.intrinsicSize();
  }];
  return CGSizeMake(size.width, size.height);
}

void HostingView::setRespectsSafeArea(bool respects) {
  implementation_->container.respectsSafeArea = respects;
}

bool HostingView::respectsSafeArea() const {
  return implementation_->container.respectsSafeArea;
}

void HostingView::setLayerCorners(double radius, CornerCurve curve, bool masksToBounds) {
  OrvaneHostingContainer* const container = implementation_->container;
  container.wantsLayer = YES;
  container.layer.cornerRadius = radius;
  container.layer.cornerCurve =
      curve == CornerCurve::continuous ? kCACornerCurveContinuous : kCACornerCurveCircular;
  container.clipsToBounds = masksToBounds;
  container.layer.masksToBounds = masksToBounds;
  container.backdropRadius = radius;
}

void HostingView::setBackdrop(Backdrop backdrop) {
  implementation_->outermost =
      [implementation_->container outermostWithBackdrop:backdrop == Backdrop::behindWindow];
}

void HostingView::onDismiss(std::function<void()> dismiss) {
  [implementation_->container.hostView setDismiss:std::move(dismiss)];
}

}  // namespace orvane::appkit
