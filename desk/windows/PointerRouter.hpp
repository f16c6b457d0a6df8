// PointerRouter sends pointer events to the window, menu or status item under the pointer.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "Orvane/ui/host/HostServices.hpp"
#include "desk/machine/PointerListener.hpp"
#include "desk/windows/DeskWindow.hpp"

namespace orvane::desk {

class WindowServer;

/// A file that is being dragged out of a view. The only operation is copying.
struct FileDrag {
  /// The value of NSDragOperationCopy.
  static constexpr unsigned copyOperation = 1;

  std::string fileUrl;
  std::string imageName;
  unsigned operations = copyOperation;
  /// The image, relative to the pointer.
  ui::Rect image;
};

/// Points named `place` are in global coordinates.
class PointerRouter : public PointerListener {
 public:
  explicit PointerRouter(WindowServer& server);
  ~PointerRouter() override;

  void pointerMovedTo(CGPoint place) override;
  void buttonPressedAt(CGPoint place) override;
  void buttonReleasedAt(CGPoint place) override;
  void wheelTurnedAt(CGPoint place, double horizontal, double vertical) override;

  /// To be called when something else may be under the pointer.
  void refresh();
  /// Cancels a press or drag without an effect.
  void cancelPress();
  /// To be called when a view's drag source has been dragged beyond its threshold.
  void beginFileDrag(const ui::DragRequest& request, const HostedView& source);
  [[nodiscard]] const std::optional<FileDrag>& fileDrag() const { return fileDrag_; }
  /// Whether the window under the pointer accepts the dragged file there.
  [[nodiscard]] bool canDropHere() const;

 private:
  struct Target {
    std::shared_ptr<HostedView> view;
    ui::Point point;
  };
  struct WindowDrag {
    std::weak_ptr<DeskWindow> window;
    /// From the pointer to the window's origin, in window-system coordinates.
    CGPoint offset;
  };

  /// Hit test: the view that receives events there; none if a modal session blocks it.
  [[nodiscard]] std::optional<Target> targetAt(CGPoint place) const;
  [[nodiscard]] std::shared_ptr<DeskWindow> dropWindowAt(CGPoint place) const;
  void hoverAt(CGPoint place);
  void pressInMenu(CGPoint place);
  void pressInWindow(const std::shared_ptr<DeskWindow>& window, CGPoint place);
  void press(const Target& target);
  void beginWindowDrag(const std::shared_ptr<DeskWindow>& window, CGPoint place);
  void dragWindow(CGPoint place);
  void drop(CGPoint place);
  /// The window whose drop target is under the drag; null for none. Calls the `hover` callbacks of
  /// the old and the new one.
  void setDropWindow(const std::shared_ptr<DeskWindow>& window);

  WindowServer& server_;
  std::weak_ptr<HostedView> hovered_;
  std::weak_ptr<HostedView> pressed_;
  std::optional<WindowDrag> windowDrag_;
  std::optional<FileDrag> fileDrag_;
  std::weak_ptr<DeskWindow> pressedCloseButton_;
  std::weak_ptr<DeskWindow> dropWindow_;
};

}  // namespace orvane::desk
