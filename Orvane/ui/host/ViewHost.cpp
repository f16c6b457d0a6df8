// Updates: build, lay out, present; and painting.
#include "Orvane/ui/host/ViewHost.hpp"

#include <algorithm>

#include "Orvane/ui/draw/StandardColors.hpp"
#include "Orvane/ui/host/Builder.hpp"
#include "Orvane/ui/host/LayoutPass.hpp"
#include "Orvane/ui/host/Painter.hpp"
#include "Orvane/ui/host/Presenter.hpp"
#include "Orvane/ui/views/ControlSemantics.hpp"

namespace orvane::ui {

void HostLink::invalidate(const std::optional<Curve>& curve) const {
  if (host != nullptr) {
    host->invalidate(curve);
  }
}

ViewHost::ViewHost(HostPlatform platform)
    : text_(*platform.text),
      images_(std::move(platform.images)),
      colors_(platform.colors ? std::move(platform.colors) : ColorResolver(standardColor)),
      services_(std::move(platform.services)),
      link_(std::make_shared<HostLink>()) {
  link_->host = this;
  link_->services = &services_;
}

ViewHost::~ViewHost() {
  link_->host = nullptr;
  link_->services = nullptr;
}

void ViewHost::setRoot(RootBuilder builder) {
  builder_ = std::move(builder);
  invalidate();
}

void ViewHost::setSize(Size size) {
  if (!(size == size_)) {
    size_ = size;
    invalidate();
  }
}

void ViewHost::setAppearance(const Appearance& appearance) {
  if (!(appearance == appearance_)) {
    appearance_ = appearance;
    invalidate();
  }
}

void ViewHost::invalidate(const std::optional<Curve>& curve) {
  if (curve) {
    pendingCurve_ = curve;
  }
  if (!needsUpdate_) {
    needsUpdate_ = true;
    requestRedraw();
  }
}

void ViewHost::requestRedraw() {
  if (services_.requestRedraw) {
    const auto request = services_.requestRedraw;
    request();
  }
}

bool ViewHost::call(const std::function<void()>& action) {
  const std::weak_ptr<HostLink> alive = link_;
  const std::function<void()> kept = action;
  if (kept) {
    kept();
  }
  return !alive.expired();
}

std::shared_ptr<const Environment> ViewHost::rootEnvironment() const {
  auto environment = std::make_shared<Environment>();
  environment->appearance = appearance_;
  environment->link = link_;
  environment->images = &images_;
  return environment;
}

void ViewHost::tick(double seconds) {
  now_ = std::max(now_, seconds);
  if (needsUpdate_) {
    layoutIfNeeded();
  } else if (isMoving_) {
    present();
    if (updateHover() && !isMoving_) {
      // Elements are where they are presented.
      call(services_.semanticsChanged);
    }
  }
}

void ViewHost::layoutIfNeeded() {
  if (!needsUpdate_ || isUpdating_) {
    return;
  }
  // What appears may change what is shown, which may let more appear. Views that never come to rest
  // would go on for ever; their later changes wait for the next tick.
  constexpr int mostRounds = 8;
  for (int round = 0; needsUpdate_ && round < mostRounds; ++round) {
    const std::vector<std::function<void()>> actions = rebuild();
    if (!updateHover()) {
      return;
    }
    for (const std::function<void()>& action : actions) {
      if (!call(action)) {
        return;
      }
    }
  }
  if (needsUpdate_) {
    requestRedraw();
  }
  call(services_.semanticsChanged);
}

std::vector<std::function<void()>> ViewHost::rebuild() {
  isUpdating_ = true;
  needsUpdate_ = false;
  const std::optional<Curve> curve = std::exchange(pendingCurve_, std::nullopt);
  const auto environment = rootEnvironment();
  Builder builder({now_, &colors_, &nodeCount_, curve});
  builder.root(root_, builder_ ? builder_(*environment) : View(), environment);
  for (const Rect& area : builder.removedInk()) {
    addDirty(area);
  }
  LayoutPass pass(text_, images_, now_);
  // A root that is smaller or larger than the host lies in its middle.
  pass.placeAligned(*root_, size_, Alignment::center(), Proposal::of(size_));
  for (const Builder::ScrollTarget& target : builder.scrollTargets()) {
    scrollToVisible(*target.node, target.curve);
  }
  forgetDeadNodes();
  present();
  isUpdating_ = false;
  return builder.takeActions();
}

void ViewHost::present() {
  Presenter presenter(now_);
  presenter.present(*root_);
  for (const Rect& area : presenter.dirty()) {
    addDirty(area);
  }
  Rect ringArea;
  if (const std::optional<FocusRing> ring = focusRing()) {
    ringArea = ring->shape.rect.inset(-4);
    ringArea = ring->clip ? ringArea.intersection(*ring->clip) : ringArea;
  }
  if (!(ringArea == presentedRing_)) {
    addDirty(presentedRing_);
    addDirty(ringArea);
    presentedRing_ = ringArea;
  }
  const bool wasMoving = std::exchange(isMoving_, presenter.isMoving());
  if (isMoving_ && !wasMoving && services_.requestFrames) {
    const auto request = services_.requestFrames;
    request();
  }
}

void ViewHost::addDirty(const Rect& area) {
  if (!area.isEmpty()) {
    dirty_.push_back(area);
  }
}

std::vector<Rect> ViewHost::takeDirtyRects() {
  std::vector<Rect> joined;
  for (Rect area : std::exchange(dirty_, {})) {
    // Joining makes the area larger, so that it may then touch another one.
    for (auto other = joined.begin(); other != joined.end();) {
      if (area.intersects(*other)) {
        area = area.united(*other);
        joined.erase(other);
        other = joined.begin();
      } else {
        ++other;
      }
    }
    joined.push_back(area);
  }
  return joined;
}

void ViewHost::paint(Canvas& canvas, const Rect& dirty) const {
  if (!root_) {
    return;
  }
  canvas.save();
  canvas.clip(Shape::rectangle(dirty));
  Painter(canvas, now_, dirty).paint(*root_);
  if (const std::optional<FocusRing> ring = focusRing()) {
    if (ring->clip) {
      canvas.clip(Shape::rectangle(*ring->clip));
    }
    // Against the lightest ground in the dark and the darkest one by day.
    const Color color = appearance_.increaseContrast
                            ? Color::accent().textOn(appearance_.dark ? 0.08 : 0.8)
                            : Color::accent().opacity(0.6);
    canvas.stroke(ring->shape, Paint::solid(color.resolve(appearance_, colors_)), 3);
  }
  canvas.restore();
}

Size ViewHost::sizeThatFits(const Proposal& proposal) {
  const std::weak_ptr<HostLink> alive = link_;
  layoutIfNeeded();
  if (alive.expired() || !root_) {
    return {};
  }
  LayoutPass pass(text_, images_, now_);
  return pass.measure(*root_, proposal);
}

SemanticsNode ViewHost::semantics() const {
  SemanticsNode tree = root_ ? collectSemantics(*root_, now_, focusedId_) : SemanticsNode{};
  tree.frame = {0, 0, size_.width, size_.height};
  return tree;
}

}  // namespace orvane::ui
