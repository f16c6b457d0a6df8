// The sequence of the passes: build and layout after a change, present for every frame.
#include "Orvane/ui/host/ViewHost.hpp"

#include <algorithm>
#include <utility>

#include "Orvane/ui/host/BuildPass.hpp"
#include "Orvane/ui/host/LayoutPass.hpp"
#include "Orvane/ui/host/PresentPass.hpp"
#include "Orvane/ui/views/Node.hpp"
#include "Orvane/ui/views/ScrollView.hpp"

namespace orvane::ui {

void HostLink::invalidate(const std::optional<Curve>& curve) const {
  if (isConnected()) {
    host_->invalidate(curve);
  }
}

ViewHost::ViewHost(HostPlatform platform)
    : text_(*platform.text),
      images_(std::move(platform.images)),
      colors_(platform.colors ? std::move(platform.colors) : ColorResolver(standardColor)) {
  tree_.link = std::make_shared<HostLink>(*this, std::move(platform.services));
}

ViewHost::~ViewHost() {
  tree_.link->disconnect();
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
    tree_.link->call(&HostServices::requestRedraw);
  }
}

void ViewHost::tick(double seconds) {
  tree_.now = std::max(tree_.now, seconds);
  if (needsUpdate_) {
    layoutIfNeeded();
  } else if (isMoving_) {
    present();
    // The frames of elements are announced once they have reached their targets.
    if (pointer_.updateHover() && !isMoving_) {
      reportSemanticsChange();
    }
  }
}

void ViewHost::layoutIfNeeded() {
  if (!needsUpdate_ || isUpdating_) {
    return;
  }
  // Handlers of views that appear may invalidate the host again. After this many rounds, further
  // changes wait for the next tick.
  constexpr int maximumRounds = 8;
  for (int round = 0; needsUpdate_ && round < maximumRounds; ++round) {
    const std::vector<std::function<void()>> actions = rebuild();
    if (!pointer_.updateHover()) {
      return;
    }
    for (const std::function<void()>& action : actions) {
      if (!tree_.call(action)) {
        return;
      }
    }
  }
  reportSemanticsChange();
}

std::vector<std::function<void()>> ViewHost::rebuild() {
  isUpdating_ = true;
  needsUpdate_ = false;
  const std::optional<Curve> curve = std::exchange(pendingCurve_, std::nullopt);
  const auto environment = std::make_shared<Environment>();
  environment->appearance = appearance_;
  environment->link = tree_.link;
  environment->images = &images_;
  BuildPass build({tree_.now, colors_, nodeCount_, damage_, curve});
  build.root(tree_.root, builder_ ? builder_(*environment) : View(), environment);
  LayoutPass layout{text_, images_, tree_.now};
  // A root of another size than the host is centred.
  layout.placeAligned(*tree_.root, size_, Alignment::center(), Proposal::of(size_));
  for (const auto& [node, scrollCurve] : build.scrollTargets()) {
    scrollIntoView(*node, scrollCurve, tree_.now);
  }
  pointer_.forgetDeadNodes();
  focus_.forgetDeadNode();
  present();
  isUpdating_ = false;
  return build.takeActions();
}

void ViewHost::present() {
  const bool wasMoving = std::exchange(isMoving_, ui::present(*tree_.root, tree_.now, damage_));
  const Rect ringArea = focus_.ringArea();
  if (!(ringArea == presentedRing_)) {
    damage_.add(presentedRing_);
    damage_.add(ringArea);
    presentedRing_ = ringArea;
  }
  if (isMoving_ && !wasMoving) {
    tree_.link->call(&HostServices::requestFrames);
  }
}

Size ViewHost::sizeThatFits(const Proposal& proposal) {
  const std::shared_ptr<HostLink> host = tree_.link;
  layoutIfNeeded();
  if (!host->isConnected() || !tree_.root) {
    return {};
  }
  return LayoutPass{text_, images_, tree_.now}.measure(*tree_.root, proposal);
}

bool ViewHost::scroll(Point point, double horizontal, double vertical) {
  if (!pointer_.scroll(point, horizontal != 0 ? horizontal : vertical)) {
    return false;
  }
  present();
  tree_.link->call(&HostServices::requestRedraw);
  if (pointer_.updateHover()) {
    reportSemanticsChange();
  }
  return true;
}

bool ViewHost::keyDown(const KeyEvent& event) {
  const bool hasShift = event.modifiers == KeyModifiers{.shift = true};
  if (event.key == Key::tab && (hasShift || event.modifiers == KeyModifiers{})) {
    if (!focus_.move(!hasShift)) {
      return false;
    }
    showFocus();
    return true;
  }
  return tree_.activate(focus_.targetOf(event));
}

bool ViewHost::focus(std::uint64_t id) {
  if (!focus_.set(id)) {
    return false;
  }
  if (tree_.root) {
    showFocus();
  }
  return true;
}

void ViewHost::showFocus() {
  present();
  tree_.link->call(&HostServices::requestRedraw);
  reportSemanticsChange();
}

}  // namespace orvane::ui
