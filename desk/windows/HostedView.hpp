// HostedView hosts views of the kit in a window or a menu row of the simulated window system.
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

/// The caller of a member that may run the views' handlers must hold a reference. On the screen the
/// views update by themselves; otherwise only in `update`.
class HostedView : public std::enable_shared_from_this<HostedView> {
 public:
  /// In frames per second.
  static constexpr int frameRate = 60;

  /// The machine's appearance settings for views.
  [[nodiscard]] static ui::Appearance appearanceOf(const Machine& machine);

  /// There must be a machine.
  explicit HostedView(ui::RootBuilder buildRoot);
  HostedView(const HostedView&) = delete;
  HostedView& operator=(const HostedView&) = delete;
  virtual ~HostedView();

  [[nodiscard]] ui::ViewHost& host() { return host_; }
  [[nodiscard]] const ui::ViewHost& host() const { return host_; }

  /// Updates the views to the machine's present time and appearance.
  void update();

  /// In points, from the top left of the window's content or of the menu row.
  void setFrame(CGRect frame);
  [[nodiscard]] CGRect frame() const { return frame_; }

  void setOnScreen(bool isOnScreen);
  [[nodiscard]] bool isOnScreen() const { return isOnScreen_; }
  /// Whether the frame timer runs, for an animation.
  [[nodiscard]] bool hasFrames() const;

  bool respectsSafeArea = true;
  double cornerRadius = 0;
  ui::CornerStyle cornerStyle = ui::CornerStyle::circular;
  bool masksToBounds = false;
  /// Whether the views are drawn over the blurred picture of what is behind the window.
  bool hasBackdrop = false;
  std::function<void()> dismiss;
  /// Called before each update; it may invalidate. For content that depends on unannounced state.
  std::function<void()> willUpdate;
  /// The backing store.
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
