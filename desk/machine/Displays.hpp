// The attached displays, in the system's order.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "Orvane/platform/Quartz.hpp"
#include "desk/machine/Display.hpp"

namespace orvane::desk {

/// Operations that can be refused return the problem with the request, or none on success; a
/// refused request changes nothing. Each successful operation counts as one change.
class Displays {
 public:
  using Problem = std::optional<std::string>;

  /// The height of the menu bar at the top of every display, in points.
  static constexpr double menuBarHeight = 24;

  /// Attaches at the end of the list. The frame must be finite and not empty, the number new.
  [[nodiscard]] Problem attach(Display display, bool asMain = false);
  [[nodiscard]] Problem detach(std::uint32_t number);
  [[nodiscard]] Problem setFrame(std::uint32_t number, CGRect frame);
  [[nodiscard]] Problem renumber(std::uint32_t number, std::uint32_t newNumber);
  [[nodiscard]] Problem setMain(std::uint32_t number);

  /// Begin and end a group of changes, which is announced as one change if it contains any.
  [[nodiscard]] Problem beginChanges();
  [[nodiscard]] Problem endChanges();
  [[nodiscard]] bool isChanging() const { return isChanging_; }
  /// To be called within a group of changes: a visible frame has changed, too.
  void noteFrameChange() { hasUnannouncedChange_ = true; }

  /// `changed` is called after each change, or once after a group of changes.
  void onChange(std::function<void()> changed) { changed_ = std::move(changed); }
  [[nodiscard]] std::int64_t changeCount() const { return changeCount_; }

  [[nodiscard]] const std::vector<Display>& all() const { return displays_; }
  [[nodiscard]] bool isEmpty() const { return displays_.empty(); }
  [[nodiscard]] std::size_t count() const { return displays_.size(); }
  /// Null when there is none.
  [[nodiscard]] const Display* find(std::uint32_t number) const;
  [[nodiscard]] const Display* main() const;
  [[nodiscard]] std::optional<std::size_t> indexOf(std::uint64_t identity) const;

  /// Frames in global coordinates: points, origin at the top left of the first display, y
  /// downwards; in the order of the list. The height of the first display turns one system into the
  /// other.
  [[nodiscard]] const std::vector<CGRect>& globalFrames() const { return globalFrames_; }
  /// The first display that contains the point; the one at `preferred` is tried first.
  [[nodiscard]] std::optional<std::size_t> indexContaining(CGPoint globalPoint,
                                                           std::size_t preferred = 0) const {
    if (preferred < globalFrames_.size() && contains(globalFrames_[preferred], globalPoint)) {
      return preferred;
    }
    return search(globalPoint);
  }
  /// Converts between the two coordinate systems, in either direction.
  [[nodiscard]] CGRect flipped(CGRect rect) const;
  [[nodiscard]] CGPoint flipped(CGPoint point) const;

 private:
  /// Like CGRectContainsPoint; a display's frame is never empty or negative.
  [[nodiscard]] static bool contains(const CGRect& frame, CGPoint point) {
    return point.x >= frame.origin.x && point.x < frame.origin.x + frame.size.width &&
           point.y >= frame.origin.y && point.y < frame.origin.y + frame.size.height;
  }
  [[nodiscard]] std::optional<std::size_t> search(CGPoint globalPoint) const;
  [[nodiscard]] Display* findMutable(std::uint32_t number);
  void changed();
  void refreshGlobalFrames();

  std::vector<Display> displays_;
  std::vector<CGRect> globalFrames_;
  /// The display that was made the main one. While it is not attached, the first one is.
  std::optional<std::uint64_t> mainIdentity_;
  std::function<void()> changed_;
  std::uint64_t nextIdentity_ = 1;
  std::int64_t changeCount_ = 0;
  bool isChanging_ = false;
  bool hasUnannouncedChange_ = false;
};

}  // namespace orvane::desk
