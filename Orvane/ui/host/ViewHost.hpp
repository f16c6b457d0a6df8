// The kit's entry point for platforms: owns a tree of views and runs the passes that turn sizes,
// times and events into layout, drawing and calls of handlers.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "Orvane/ui/draw/Appearance.hpp"
#include "Orvane/ui/draw/Canvas.hpp"
#include "Orvane/ui/draw/Color.hpp"
#include "Orvane/ui/draw/ImageSource.hpp"
#include "Orvane/ui/draw/TextMeasurer.hpp"
#include "Orvane/ui/host/Damage.hpp"
#include "Orvane/ui/host/HostServices.hpp"
#include "Orvane/ui/host/KeyboardFocus.hpp"
#include "Orvane/ui/host/PointerInput.hpp"
#include "Orvane/ui/host/RetainedTree.hpp"
#include "Orvane/ui/layout/Proposal.hpp"
#include "Orvane/ui/views/Curve.hpp"
#include "Orvane/ui/views/KeyboardShortcut.hpp"
#include "Orvane/ui/views/Semantics.hpp"

namespace orvane::ui {

/// What a host needs. The text measurer must outlive it.
struct HostPlatform {
  TextMeasurer* text = nullptr;
  ImageSource images = {};
  /// Unset: the standard colours.
  ColorResolver colors = {};
  HostServices services = {};
};

/// Main thread only. Coordinates are points from the host's top left corner. Handlers of views may
/// do anything, even destroy the host; a function that is running then returns without touching it.
///
/// The time is that of tick(), in seconds of any clock that never goes back. Call tick() before
/// passing an event, so that animations that the event starts begin at its time.
class ViewHost {
 public:
  explicit ViewHost(HostPlatform platform);
  ViewHost(const ViewHost&) = delete;
  ViewHost& operator=(const ViewHost&) = delete;
  ~ViewHost();

  /// The builder runs at every update.
  void setRoot(RootBuilder builder);
  void setSize(Size size);
  [[nodiscard]] Size size() const { return size_; }
  void setAppearance(const Appearance& appearance);
  [[nodiscard]] const Appearance& appearance() const { return appearance_; }

  /// Data that the views read has changed: the next update builds them again. With a curve, the
  /// resulting changes are animated along it.
  void invalidate(const std::optional<Curve>& curve = std::nullopt);

  /// The root's ideal size, and the size it chooses for a proposal. Both update the views first.
  [[nodiscard]] Size intrinsicSize() { return sizeThatFits({}); }
  [[nodiscard]] Size sizeThatFits(const Proposal& proposal);

  /// Sets the time, updates views and layout, and samples animations. The time never goes back: an
  /// earlier one changes nothing.
  void tick(double seconds);
  [[nodiscard]] double time() const { return tree_.now; }
  /// The same at the present time.
  void layoutIfNeeded();
  [[nodiscard]] bool needsUpdate() const { return needsUpdate_; }
  /// Whether an animation is running. False from the tick on that presents its end.
  [[nodiscard]] bool nextFrameWanted() const { return isMoving_; }

  /// What has to be repainted since the last call; overlapping areas are joined. They may reach
  /// beyond the host.
  std::vector<Rect> takeDirtyRects() { return damage_.take(); }
  /// Paints what was presented last. Everything in the rectangle is painted, and nothing outside.
  void paint(Canvas& canvas, const Rect& dirty) const;

  /// Pointer events; a drag is a movement with the button pressed. The result says whether a view
  /// took the event. A press that no view takes may move the window.
  void pointerMoved(Point point) { pointer_.move(point); }
  void pointerExited() { pointer_.move(std::nullopt); }
  bool pointerDown(Point point) { return pointer_.press(point); }
  void pointerDragged(Point point) { pointer_.drag(point); }
  bool pointerUp(Point point) { return pointer_.release(point); }
  /// The platform took the pointer away: a pending press has no effect.
  void pointerCancelled() { pointer_.cancelPress(); }
  /// Moves the content below the pointer by these distances (positive: towards the end). Without a
  /// horizontal distance the vertical one scrolls, for wheels with one direction.
  bool scroll(Point point, double horizontal, double vertical);
  /// Whether the key had an effect here.
  bool keyDown(const KeyEvent& event);

  /// False over a view that takes presses.
  [[nodiscard]] bool movesWindowAt(Point point) const {
    return tree_.pressTarget(point) == nullptr;
  }
  [[nodiscard]] std::optional<Tooltip> tooltipAt(Point point) const {
    return tree_.tooltipAt(point);
  }

  /// The root is a group that covers the host.
  [[nodiscard]] SemanticsNode semantics() const;
  /// The same as a click on the control with this id. False when there is none or it is disabled.
  bool press(std::uint64_t id) { return tree_.activate(id); }

  /// The id, in the semantics tree, of the control with the keyboard focus; 0 without one.
  [[nodiscard]] std::uint64_t focusedId() const { return focus_.id(); }
  /// False when no enabled, focusable control has this id; 0 takes the focus away. The focus ring
  /// only shows after Tab.
  bool focus(std::uint64_t id);

  /// The retained tree as text, for debuggers and failing tests: one line per node, indented by
  /// depth, with its kind, id and frame as presented (x, y, width and height), what each pass did
  /// with it last, and its element in the semantics tree. docs/ui.md explains the words.
  [[nodiscard]] std::string dumpTree() const;

 private:
  /// Returns the handlers to call afterwards.
  std::vector<std::function<void()>> rebuild();
  void present();
  void reportSemanticsChange() const { tree_.link->call(&HostServices::semanticsChanged); }
  void showFocus();

  TextMeasurer& text_;
  ImageSource images_;
  ColorResolver colors_;
  RootBuilder builder_;
  Appearance appearance_;
  Size size_;

  std::uint64_t nodeCount_ = 0;
  bool needsUpdate_ = false;
  bool isUpdating_ = false;
  bool isMoving_ = false;
  std::optional<Curve> pendingCurve_;
  Damage damage_;
  Rect presentedRing_;

  RetainedTree tree_;
  PointerInput pointer_{tree_};
  KeyboardFocus focus_{tree_};
};

}  // namespace orvane::ui
