// The keyboard: which control has the focus, its ring, and which control a key activates.
#pragma once

#include <cstdint>
#include <optional>

#include "Orvane/ui/draw/Canvas.hpp"
#include "Orvane/ui/draw/Color.hpp"
#include "Orvane/ui/host/RetainedTree.hpp"
#include "Orvane/ui/views/KeyboardShortcut.hpp"

namespace orvane::ui {

/// Controls are named by their ids in the semantics tree; 0 is none.
class KeyboardFocus {
 public:
  /// The tree must outlive it.
  explicit KeyboardFocus(const RetainedTree& tree) : tree_(tree) {}

  [[nodiscard]] std::uint64_t id() const { return id_; }
  /// Gives the focus to an enabled, focusable control without showing the ring, or takes it away
  /// (0). False when the control cannot take it.
  bool set(std::uint64_t id);
  /// Moves the focus to the next or the previous visible control in reading order, from one end to
  /// the other, and shows the ring. False when there is no such control.
  bool move(bool isForward);
  /// After a rebuild: takes the focus from a control that is gone or disabled.
  void forgetDeadNode();

  /// The control that the key activates, by its shortcut or because it has the focus.
  [[nodiscard]] std::uint64_t targetOf(const KeyEvent& event) const;

  /// The area of the ring in host coordinates; empty while none is shown.
  [[nodiscard]] Rect ringArea() const;
  /// Draws the ring, if it is shown. The clip of the canvas may be smaller afterwards.
  void drawRing(Canvas& canvas, const Appearance& appearance, const ColorResolver& colors) const;

 private:
  struct Ring {
    Shape shape;
    /// The visible part of the scroll views around the control; none without one.
    std::optional<Rect> clip;
  };

  void give(std::uint64_t id, bool showsRing);
  [[nodiscard]] std::uint64_t shortcutTarget(const KeyEvent& event) const;
  [[nodiscard]] std::optional<Ring> ring() const;

  const RetainedTree& tree_;
  std::uint64_t id_ = 0;
  bool showsRing_ = false;
};

}  // namespace orvane::ui
