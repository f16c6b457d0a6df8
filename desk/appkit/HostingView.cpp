// Hosting views on the desk, which are views of its window server.
#include "Orvane/platform/appkit/HostingView.hpp"

#include <utility>

#include "desk/windows/Implementations.hpp"

namespace orvane::appkit {

HostingView::HostingView(RootBuilder buildRoot)
    : implementation_(std::make_shared<Implementation>(std::move(buildRoot))) {}

void HostingView::setNeedsUpdate() {
  implementation_->host().invalidate();
}

void HostingView::setFrame(CGRect frame) {
  implementation_->setFrame(frame);
}

CGRect HostingView::frame() const {
  return implementation_->frame();
}

CGSize HostingView::fittingSize() const {
  const std::shared_ptr<Implementation> kept = implementation_;
  const ui::Size size = kept->host().intrinsicSize();
  return CGSizeMake(size.width, size.height);
}

void HostingView::setRespectsSafeArea(bool respects) {
  implementation_->respectsSafeArea = respects;
}

bool HostingView::respectsSafeArea() const {
  return implementation_->respectsSafeArea;
}

void HostingView::setLayerCorners(double radius, CornerCurve curve, bool masksToBounds) {
  implementation_->cornerRadius = radius;
  implementation_->cornerStyle =
      curve == CornerCurve::continuous ? ui::CornerStyle::continuous : ui::CornerStyle::circular;
  implementation_->masksToBounds = masksToBounds;
}

void HostingView::setBackdrop(Backdrop backdrop) {
  implementation_->hasBackdrop = backdrop == Backdrop::behindWindow;
}

void HostingView::onDismiss(std::function<void()> dismiss) {
  implementation_->dismiss = std::move(dismiss);
}

}  // namespace orvane::appkit
