// Changes to the displays, each validated before it is made.
#include "desk/machine/Displays.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

namespace orvane::desk {

namespace {

Displays::Problem problemWith(CGRect frame) {
  if (!std::isfinite(frame.origin.x) || !std::isfinite(frame.origin.y) ||
      !std::isfinite(frame.size.width) || !std::isfinite(frame.size.height)) {
    return "the frame of a display must be finite";
  }
  if (!(frame.size.width > 0 && frame.size.height > 0)) {
    return "the frame of a display must not be empty";
  }
  return std::nullopt;
}

std::string unknown(std::uint32_t number) {
  return "there is no display " + std::to_string(number);
}

std::string taken(std::uint32_t number) {
  return "there is a display " + std::to_string(number) + " already";
}

}  // namespace

Displays::Problem Displays::attach(Display display, bool asMain) {
  if (find(display.number) != nullptr) {
    return taken(display.number);
  }
  if (auto problem = problemWith(display.frame)) {
    return problem;
  }
  display.identity = nextIdentity_++;
  if (asMain) {
    mainIdentity_ = display.identity;
  }
  displays_.push_back(std::move(display));
  changed();
  return std::nullopt;
}

Displays::Problem Displays::detach(std::uint32_t number) {
  const auto gone = std::ranges::find(displays_, number, &Display::number);
  if (gone == displays_.end()) {
    return unknown(number);
  }
  if (gone->identity == mainIdentity_) {
    mainIdentity_.reset();
  }
  displays_.erase(gone);
  changed();
  return std::nullopt;
}

Displays::Problem Displays::setFrame(std::uint32_t number, CGRect frame) {
  Display* const display = findMutable(number);
  if (display == nullptr) {
    return unknown(number);
  }
  if (auto problem = problemWith(frame)) {
    return problem;
  }
  display->frame = frame;
  changed();
  return std::nullopt;
}

Displays::Problem Displays::renumber(std::uint32_t number, std::uint32_t newNumber) {
  Display* const display = findMutable(number);
  if (display == nullptr) {
    return unknown(number);
  }
  if (newNumber != number && find(newNumber) != nullptr) {
    return taken(newNumber);
  }
  display->number = newNumber;
  changed();
  return std::nullopt;
}

Displays::Problem Displays::setMain(std::uint32_t number) {
  const Display* const display = find(number);
  if (display == nullptr) {
    return unknown(number);
  }
  mainIdentity_ = display->identity;
  changed();
  return std::nullopt;
}

Displays::Problem Displays::beginChanges() {
  if (isChanging_) {
    return "a group of changes is open already";
  }
  isChanging_ = true;
  hasUnannouncedChange_ = false;
  return std::nullopt;
}

Displays::Problem Displays::endChanges() {
  if (!isChanging_) {
    return "no group of changes is open";
  }
  isChanging_ = false;
  if (hasUnannouncedChange_) {
    changed();
  }
  return std::nullopt;
}

const Display* Displays::find(std::uint32_t number) const {
  const auto found = std::ranges::find(displays_, number, &Display::number);
  return found == displays_.end() ? nullptr : &*found;
}

Display* Displays::findMutable(std::uint32_t number) {
  return const_cast<Display*>(std::as_const(*this).find(number));
}

const Display* Displays::main() const {
  const auto main = std::ranges::find(displays_, mainIdentity_, &Display::identity);
  if (main != displays_.end()) {
    return &*main;
  }
  return displays_.empty() ? nullptr : &displays_.front();
}

std::optional<std::size_t> Displays::indexOf(std::uint64_t identity) const {
  const auto found = std::ranges::find(displays_, identity, &Display::identity);
  return found == displays_.end()
             ? std::nullopt
             : std::optional(static_cast<std::size_t>(found - displays_.begin()));
}

std::optional<std::size_t> Displays::search(CGPoint globalPoint) const {
  for (std::size_t index = 0; index < globalFrames_.size(); ++index) {
    if (contains(globalFrames_[index], globalPoint)) {
      return index;
    }
  }
  return std::nullopt;
}

CGRect Displays::flipped(CGRect rect) const {
  if (displays_.empty()) {
    return rect;
  }
  const double height = displays_.front().frame.size.height;
  return CGRectMake(rect.origin.x, height - (rect.origin.y + rect.size.height), rect.size.width,
                    rect.size.height);
}

CGPoint Displays::flipped(CGPoint point) const {
  if (displays_.empty()) {
    return point;
  }
  return CGPointMake(point.x, displays_.front().frame.size.height - point.y);
}

void Displays::changed() {
  refreshGlobalFrames();
  if (isChanging_) {
    hasUnannouncedChange_ = true;
    return;
  }
  ++changeCount_;
  if (changed_) {
    changed_();
  }
}

void Displays::refreshGlobalFrames() {
  globalFrames_.clear();
  for (const Display& display : displays_) {
    globalFrames_.push_back(flipped(display.frame));
  }
}

}  // namespace orvane::desk
