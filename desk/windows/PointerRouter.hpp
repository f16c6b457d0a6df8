// PointerRouter takes what the pointer does to the window, menu or status item that is under it.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "Orvane/ui/host/HostServices.hpp"
#include "desk/machine/PointerListener.hpp"
#include "desk/windows/DeskWindow.hpp"

namespace orvane::desk {

class WindowServer;

/// A file on its way from a view to whatever takes it. It can only be copied.
struct FileDrag {
  /// The value of NSDragOperationCopy.
  static constexpr unsigned copyOperation = 1;

  std::string fileUrl;
  std::string imageName;
  unsigned operations = copyOperation;
  /// The image, relative to the pointer.
  ui::Rect image;
};

/// Places are in global coordinates.
class PointerRouter : public PointerListener {
 public:
  explicit PointerRouter(WindowServer& server);
  ~PointerRouter() override;

  void pointerMovedTo(CGPoint place) override;
  void buttonPressedAt(CGPoint place) override;
  void buttonReleasedAt(CGPoint place) override;
  void wheelTurnedAt(CGPoint place, double horizontal, double vertical) override;

  /// Something else may be under the pointer now.
  void refresh();
  /// Whatever was pressed or dragged is let go without an effect.
  void cancelPress();
  /// A view's drag source has been dragged far enough.
  void beginFileDrag(const ui::DragRequest& request, const HostedView& source);
  [[nodiscard]] const std::optional<FileDrag>& fileDrag() const { return fileDrag_; }
  /// Whether the file would be taken where the pointer is now.
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

  /// The view that would hear of the pointer there; none when there is none or it is kept back.
  [[nodiscard]] std::optional<Target> targetAt(CGPoint place) const;
  [[nodiscard]] std::shared_ptr<DeskWindow> dropWindowAt(CGPoint place) const;
  void hoverAt(CGPoint place);
  void pressInMenu(CGPoint place);
  void pressInWindow(const std::shared_ptr<DeskWindow>& window, CGPoint place);
  void press(const Target& target);
  void beginWindowDrag(const std::shared_ptr<DeskWindow>& window, CGPoint place);
  void dragWindow(CGPoint place);
  void drop(CGPoint place);
  /// Tells the window that it would take the file, and the one before that it would not. Null for
  /// none.
  void showDropAt(const std::shared_ptr<DeskWindow>& window);

  WindowServer& server_;
  std::weak_ptr<HostedView> hovered_;
  std::weak_ptr<HostedView> pressed_;
  std::optional<WindowDrag> windowDrag_;
  std::optional<FileDrag> fileDrag_;
  std::weak_ptr<DeskWindow> pressedCloseButton_;
  std::weak_ptr<DeskWindow> dropShownIn_;
};

}  // namespace orvane::desk
