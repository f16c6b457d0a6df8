// When the Dock moves, appears and hides.
#include "desk/machine/Dock.hpp"

#include <algorithm>
#include <cmath>
#include <string>

namespace orvane::desk {

namespace {

/// The fraction of the edge that the drawn Dock covers.
constexpr double drawnFraction = 0.6;

bool isBetween(double value, double low, double high) {
  return value >= low && value < high;
}

}  // namespace

void Dock::readPreferences(const Preferences& preferences, CGPoint pointerPlace) {
  edge_ = DockEdge::bottom;
  if (const auto value = preferences.stored(preferencesDomain, orientationKey)) {
    const auto* const text = std::get_if<std::string>(&*value);
    if (text != nullptr && *text == "left") {
      edge_ = DockEdge::left;
    } else if (text != nullptr && *text == "right") {
      edge_ = DockEdge::right;
    }
  }
  const auto value = preferences.stored(preferencesDomain, autoHideKey);
  autoHides_ = value == PropertyValue(true);
  if (displayIdentity_ != 0) {
    setVisible(!autoHides_ || (isVisible_ && isInArea(pointerPlace)));
  }
  if (changed_) {
    changed_();
  }
}

void Dock::displaysChanged(CGPoint pointerPlace) {
  const Display* const main = displays_.main();
  const std::uint64_t newMain = main == nullptr ? 0 : main->identity;
  const bool followsMain = displayIdentity_ == mainIdentity_ && newMain != mainIdentity_;
  mainIdentity_ = newMain;
  if (followsMain || !displays_.indexOf(displayIdentity_)) {
    displayIdentity_ = newMain;
    setVisible(newMain != 0 && !autoHides_);
    // The system places it there without a slide.
    slideStartedAt_ = clock_.now() - slideNanoseconds;
  } else if (hidesWhenLeft_ && !isInArea(pointerPlace)) {
    setVisible(false);
  }
}

void Dock::pressed(CGPoint goal, CGPoint place, std::size_t displayIndex) {
  const auto& frames = displays_.globalFrames();
  const CGRect& frame = frames[displayIndex];
  const auto own = this->displayIndex();
  // A mirror of the Dock's display shows the same Dock.
  if (own && CGRectEqualToRect(frames[*own], frame)) {
    if (!isVisible_ && !hasNeighbourBehind(place, displayIndex)) {
      setVisible(true);
      countReveal();
    }
    return;
  }
  if (isAtEdge(goal, frame, 0) && !hasNeighbourBehind(place, displayIndex)) {
    displayIdentity_ = displays_.all()[displayIndex].identity;
    isVisible_ = false;
    slideStartedAt_ = clock_.now() - slideNanoseconds;
    setVisible(true);
    countReveal();
  } else if (hidesWhenLeft_) {
    setVisible(false);
  }
}

bool Dock::hasNeighbourBehind(CGPoint place, std::size_t displayIndex) const {
  const auto& frames = displays_.globalFrames();
  const CGRect& frame = frames[displayIndex];
  return std::any_of(frames.begin(), frames.end(), [&](const CGRect& other) {
    if (CGRectEqualToRect(other, frame)) {
      return false;
    }
    const double right = other.origin.x + other.size.width;
    const double bottom = other.origin.y + other.size.height;
    switch (edge_) {
      case DockEdge::bottom:
        return isBetween(place.x, other.origin.x, right) &&
               std::abs(other.origin.y - (frame.origin.y + frame.size.height)) <=
                   neighbourTolerance;
      case DockEdge::left:
        return isBetween(place.y, other.origin.y, bottom) &&
               std::abs(right - frame.origin.x) <= neighbourTolerance;
      case DockEdge::right:
        return isBetween(place.y, other.origin.y, bottom) &&
               std::abs(other.origin.x - (frame.origin.x + frame.size.width)) <= neighbourTolerance;
    }
    return false;
  });
}

bool Dock::isInArea(CGPoint place) const {
  const auto index = displayIndex();
  if (!index) {
    return false;
  }
  const CGRect& frame = displays_.globalFrames()[*index];
  return CGRectContainsPoint(frame, place) && isAtEdge(place, frame, depth);
}

void Dock::countReveal() {
  if (const auto number = displayNumber()) {
    ++reveals_[*number];
  }
}

void Dock::setVisible(bool visible) {
  const bool changes = visible != isVisible_;
  if (changes) {
    // A reversed slide starts from the Dock's present position.
    const double alreadySlid = visible ? shownFraction() : 1 - shownFraction();
    isVisible_ = visible;
    slideStartedAt_ =
        clock_.now() - static_cast<std::int64_t>(alreadySlid * double{slideNanoseconds});
  }
  hidesWhenLeft_ = autoHides_ && isVisible_;
  if (changes && changed_) {
    changed_();
  }
}

std::optional<std::size_t> Dock::displayIndex() const {
  return displays_.indexOf(displayIdentity_);
}

std::optional<std::uint32_t> Dock::displayNumber() const {
  const auto index = displayIndex();
  return index ? std::optional(displays_.all()[*index].number) : std::nullopt;
}

CGRect Dock::frame() const {
  const auto index = displayIndex();
  if (!index) {
    return {};
  }
  CGRect frame = displays_.globalFrames()[*index];
  const bool isLevel = edge_ == DockEdge::bottom;
  double& start = isLevel ? frame.origin.x : frame.origin.y;
  double& length = isLevel ? frame.size.width : frame.size.height;
  const double drawn = length * drawnFraction;
  start += (length - drawn) / 2;
  length = drawn;
  double& thickness = isLevel ? frame.size.height : frame.size.width;
  if (edge_ != DockEdge::left) {
    (isLevel ? frame.origin.y : frame.origin.x) += thickness - depth;
  }
  thickness = depth;
  return frame;
}

CGRect Dock::visibleFrameOf(const Display& display) const {
  CGRect visible = display.frame;
  visible.size.height -= Displays::menuBarHeight;
  if (!isVisible_ || displayNumber() != display.number) {
    return visible;
  }
  (edge_ == DockEdge::bottom ? visible.size.height : visible.size.width) -= depth;
  if (edge_ != DockEdge::right) {
    (edge_ == DockEdge::bottom ? visible.origin.y : visible.origin.x) += depth;
  }
  return visible;
}

double Dock::shownFraction() const {
  const auto elapsed = static_cast<double>(clock_.now() - slideStartedAt_);
  const double slid = std::min(elapsed / static_cast<double>(slideNanoseconds), 1.0);
  return isVisible_ ? slid : 1 - slid;
}

std::int64_t Dock::revealCount(std::uint32_t displayNumber) const {
  const auto count = reveals_.find(displayNumber);
  return count == reveals_.end() ? 0 : count->second;
}

std::int64_t Dock::revealCount() const {
  std::int64_t sum = 0;
  for (const auto& [number, count] : reveals_) {
    sum += count;
  }
  return sum;
}

}  // namespace orvane::desk
