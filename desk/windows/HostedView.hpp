// HostedView shows a tree of the view kit in a window or a menu of the simulated window system.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "Orvane/platform/Quartz.hpp"
#include "Orvane/ui/draw/Appearance.hpp"
#include "Orvane/ui/draw/Shape.hpp"
#include "Orvane/ui/host/ViewHost.hpp"
#include "desk/machine/RunLoopTimer.hpp"
#include "desk/windows/ContentPicture.hpp"

namespace orvane::desk {

class Machine;

/// Whoever calls a member that may run handlers of the views holds the view meanwhile. While it is
/// on the screen it follows changes and asks for frames; otherwise it is brought up to date when
/// somebody looks at it.
class HostedView : public std::enable_shared_from_this<HostedView> {
 public:
  /// In frames per second.
  static constexpr int frameRate = 60;

  /// How the user of the machine likes views to look.
  [[nodiscard]] static ui::Appearance appearanceOf(const Machine& machine);

  /// There must be a machine.
  explicit HostedView(ui::ViewHost::RootBuilder buildRoot);
  HostedView(const HostedView&) = delete;
  HostedView& operator=(const HostedView&) = delete;
  virtual ~HostedView();

  [[nodiscard]] ui::ViewHost& host() { return host_; }
  [[nodiscard]] const ui::ViewHost& host() const { return host_; }

  /// Brings the views to the present instant and the machine's present appearance.
  void update();

  /// In points, within the content of a window or at the top left of a menu's row.
  void setFrame(CGRect frame);
  [[nodiscard]] CGRect frame() const { return frame_; }

  void setOnScreen(bool isOnScreen);
  [[nodiscard]] bool isOnScreen() const { return isOnScreen_; }
  /// Whether frames come, because something moves.
  [[nodiscard]] bool hasFrames() const;

  bool respectsSafeArea = true;
  double cornerRadius = 0;
  ui::CornerStyle cornerStyle = ui::CornerStyle::circular;
  bool masksToBounds = false;
  /// Whether the blurred picture of what is behind the window lies behind the views.
  bool hasBackdrop = false;
  std::function<void()> dismiss;
  /// Called before each update, for content that follows what nobody announces; it may invalidate.
  std::function<void()> willUpdate;
  /// What it has drawn so far, for whoever shows it.
  ContentPicture picture;

 private:
  [[nodiscard]] ui::HostPlatform platform();
  void startFrames();
  void stopFrames();

  CGRect frame_{};
  bool isOnScreen_ = false;
  bool isUpdating_ = false;
  std::shared_ptr<RunLoopTimer> frames_;
  ui::ViewHost host_;
};

}  // namespace orvane::desk
