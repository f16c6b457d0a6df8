// A view of the window system that shows a tree of the view kit; an NSView on a Mac.
#pragma once

#include <functional>
#include <memory>

#include "Orvane/platform/Quartz.hpp"
#include "Orvane/ui/RootBuilder.hpp"

namespace orvane::appkit {

/// How the corners of a view's layer are drawn.
enum class CornerCurve { circular, continuous };

/// What lies behind a view's own drawing.
enum class Backdrop {
  none,
  /// The blurred picture of whatever is behind the window.
  behindWindow,
};

/// A handle: copies show and change the same view, which lives as long as a handle or a window
/// holds it. Main thread only.
class HostingView {
 public:
  using RootBuilder = ui::RootBuilder;

  /// `buildRoot` is called whenever the view has to be described anew. It reads the state that it
  /// shows; whoever changes that state calls setNeedsUpdate.
  explicit HostingView(RootBuilder buildRoot);

  /// The description may have changed; it is built again before the next drawing.
  void setNeedsUpdate();

  /// Position and size within the window's content, in points.
  void setFrame(CGRect frame);
  [[nodiscard]] CGRect frame() const;
  /// The size that the content asks for when nothing is proposed to it, in points.
  [[nodiscard]] CGSize fittingSize() const;

  /// Whether the content keeps clear of a title bar; it does at first.
  void setRespectsSafeArea(bool respects);
  [[nodiscard]] bool respectsSafeArea() const;

  /// Layer-backed, with rounded corners that clip the content when `masksToBounds`.
  void setLayerCorners(double radius, CornerCurve curve, bool masksToBounds);
  /// Before the view is shown in a window.
  void setBackdrop(Backdrop backdrop);

  /// Called when a control of the content asks for the end of what it is shown in, as the
  /// environment's dismiss action does.
  void onDismiss(std::function<void()> dismiss);

  struct Implementation;
  [[nodiscard]] const std::shared_ptr<Implementation>& implementation() const {
    return implementation_;
  }

 private:
  std::shared_ptr<Implementation> implementation_;
};

}  // namespace orvane::appkit
