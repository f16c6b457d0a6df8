// A view of the window system that shows a view tree of the kit; an NSView on a Mac.
#pragma once

#include <functional>
#include <memory>

#include "Orvane/platform/Quartz.hpp"
#include "Orvane/ui/host/HostServices.hpp"

namespace orvane::appkit {

/// How the corners of a view's layer are drawn.
enum class CornerCurve { circular, continuous };

/// The background of a view.
enum class Backdrop {
  none,
  /// A blurred image of the desktop and windows behind the window.
  behindWindow,
};

/// A handle: copies refer to the same view, which lives as long as a handle or a window holds it.
/// Main thread only.
class HostingView {
 public:
  using RootBuilder = ui::RootBuilder;

  /// `buildRoot` is called whenever the view's description has to be rebuilt. It reads the state
  /// that it shows; code that changes that state must call setNeedsUpdate.
  explicit HostingView(RootBuilder buildRoot);

  /// Marks the description as outdated; it is rebuilt before the next drawing.
  void setNeedsUpdate();

  /// Position and size within the window's content, in points.
  void setFrame(CGRect frame);
  [[nodiscard]] CGRect frame() const;
  /// The content's ideal size, in points.
  [[nodiscard]] CGSize fittingSize() const;

  /// Whether the content avoids the title bar; true by default.
  void setRespectsSafeArea(bool respects);
  [[nodiscard]] bool respectsSafeArea() const;

  /// Layer-backed, with rounded corners that clip the content when `masksToBounds`.
  void setLayerCorners(double radius, CornerCurve curve, bool masksToBounds);
  /// To be called before the view is shown in a window.
  void setBackdrop(Backdrop backdrop);

  /// Called when the content invokes the environment's dismiss action.
  void onDismiss(std::function<void()> dismiss);

  struct Implementation;
  [[nodiscard]] const std::shared_ptr<Implementation>& implementation() const {
    return implementation_;
  }

 private:
  std::shared_ptr<Implementation> implementation_;
};

}  // namespace orvane::appkit
