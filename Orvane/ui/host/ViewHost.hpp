// The one entry point for platforms: holds a tree of views and turns sizes, times and events into
// layout, drawing and actions. Coordinates are points from the top left corner of the host.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Orvane/ui/draw/Appearance.hpp"
#include "Orvane/ui/draw/Canvas.hpp"
#include "Orvane/ui/draw/Color.hpp"
#include "Orvane/ui/draw/ImageSource.hpp"
#include "Orvane/ui/draw/TextMeasurer.hpp"
#include "Orvane/ui/host/HostServices.hpp"
#include "Orvane/ui/host/RootBuilder.hpp"
#include "Orvane/ui/layout/Proposal.hpp"
#include "Orvane/ui/views/Curve.hpp"
#include "Orvane/ui/views/KeyboardShortcut.hpp"
#include "Orvane/ui/views/Semantics.hpp"

namespace orvane::ui {

struct HostLink;
struct Node;

struct Tooltip {
  std::string text;
  // The view it belongs to, in the host's coordinates.
  Rect frame;
};

// What a host stands on. The text measurer must outlive it.
struct HostPlatform {
  TextMeasurer* text = nullptr;
  ImageSource images = {};
  // Unset: the standard colours.
  ColorResolver colors = {};
  HostServices services = {};
};

// Main thread only. Handlers of views may do anything, also destroy the host; a member function
// that is running then returns without touching it again.
//
// The time is what the platform passes to tick(), in seconds of any clock that never goes back.
// Call tick() before passing an event on, so that what the event starts, starts now.
class ViewHost {
 public:
  using RootBuilder = ui::RootBuilder;

  explicit ViewHost(HostPlatform platform);
  ViewHost(const ViewHost&) = delete;
  ViewHost& operator=(const ViewHost&) = delete;
  ~ViewHost();

  // What is shown. The builder is asked anew at every update.
  void setRoot(RootBuilder builder);
  void setSize(Size size);
  Size size() const { return size_; }
  void setAppearance(const Appearance& appearance);
  const Appearance& appearance() const { return appearance_; }

  // Something the views read has changed: they are built anew at the next update. With a curve,
  // what looks different then travels along it.
  void invalidate(const std::optional<Curve>& curve = std::nullopt);

  // The size the root would like best, and the one it chooses for a proposal. Both bring the views
  // up to date first.
  Size intrinsicSize() { return sizeThatFits({}); }
  Size sizeThatFits(const Proposal& proposal);

  // Sets the time, brings views and layout up to date, and samples animations. An earlier time than
  // the one before counts as that one.
  void tick(double seconds);
  double time() const { return now_; }
  // The same without a change of time.
  void layoutIfNeeded();
  bool needsUpdate() const { return needsUpdate_; }
  // True while something moves. False from the tick on in which everything has arrived.
  bool nextFrameWanted() const { return isMoving_; }

  // What has to be repainted since the last call; overlapping areas are joined. They may reach
  // beyond the host.
  std::vector<Rect> takeDirtyRects();
  // Paints as presented; only what lies in the rectangle is certain to be painted, and nothing
  // outside.
  void paint(Canvas& canvas, const Rect& dirty) const;

  // Pointer events; a move is one without a pressed button, a drag one with it. Those that return a
  // bool say whether a view took the event; a press that no view takes may move the window.
  void pointerMoved(Point point);
  void pointerExited();
  bool pointerDown(Point point);
  void pointerDragged(Point point);
  bool pointerUp(Point point);
  // Something took the pointer away: a pending press does nothing.
  void pointerCancelled();
  // Moves the content below the pointer by these distances (positive: towards the end). Where there
  // is no horizontal distance, the vertical one scrolls, for wheels that turn only one way.
  bool scroll(Point point, double horizontal, double vertical);
  // Returns whether the key did anything here.
  bool keyDown(const KeyEvent& event);

  // False over a view that takes presses itself.
  bool movesWindowAt(Point point) const;
  // What a view there says, else in full what is cut there: anywhere over a control whose text is.
  std::optional<Tooltip> tooltipAt(Point point) const;

  SemanticsNode semantics() const;
  // The same as a click on the control with this id. False when there is none or it is disabled.
  bool perform(std::uint64_t id, SemanticsAction action);

  // The keyboard focus, as a semantics id; 0 when nothing has it. The ring is only visible when the
  // focus came by the keyboard.
  std::uint64_t focusedId() const { return focusedId_; }
  // False when no enabled, focusable control has this id; 0 takes the focus away.
  bool focus(std::uint64_t id);

 private:
  using Hits = std::vector<const Node*>;

  std::shared_ptr<const Environment> rootEnvironment() const;
  std::vector<std::function<void()>> rebuild();
  void present();
  void addDirty(const Rect& area);
  void requestRedraw();
  void forgetDeadNodes();
  // Whether the host has survived the call.
  bool call(const std::function<void()>& action);

  // Views under the point as presented, topmost first.
  Hits hitTest(Point point) const;
  Node* topmostPressable(Point point) const;
  std::optional<Tooltip> expansionTooltip(const Hits& hits) const;
  bool updateHover();
  void setPressed(Node& node, bool isPressed);
  bool activate(std::uint64_t id);
  void beginDrag(Node& node);

  bool moveFocus(bool isForward);
  bool activateShortcut(const KeyEvent& event);
  void setFocus(std::uint64_t id, bool isVisible);
  // Everything that scrolls around the node brings it into sight.
  void scrollToVisible(const Node& node, const std::optional<Curve>& curve);
  struct FocusRing {
    Shape shape;
    // What the scroll views around the control let be seen; none without one.
    std::optional<Rect> clip;
  };
  std::optional<FocusRing> focusRing() const;

  TextMeasurer& text_;
  ImageSource images_;
  ColorResolver colors_;
  HostServices services_;
  RootBuilder builder_;
  Appearance appearance_;
  Size size_;
  double now_ = 0;

  std::unique_ptr<Node> root_;
  std::uint64_t nodeCount_ = 0;
  bool needsUpdate_ = false;
  bool isUpdating_ = false;
  bool isMoving_ = false;
  std::optional<Curve> pendingCurve_;
  std::vector<Rect> dirty_;
  Rect presentedRing_;

  std::optional<Point> pointer_;
  std::vector<std::uint64_t> hovered_;
  std::uint64_t pressedId_ = 0;
  Point pressPoint_;
  bool isDragging_ = false;
  std::uint64_t focusedId_ = 0;
  bool isFocusVisible_ = false;

  // Last, so that it ends first: from then on nobody reaches the host any more.
  std::shared_ptr<HostLink> link_;
};

}  // namespace orvane::ui
