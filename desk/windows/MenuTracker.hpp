// MenuTracker tracks the open menu, at most one at a time: the status item's menu or the pop-up
// menu of a picker.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Orvane/platform/Quartz.hpp"
#include "Orvane/ui/host/HostServices.hpp"
#include "Orvane/ui/views/KeyboardShortcut.hpp"
#include "desk/windows/DeskMenu.hpp"
#include "desk/windows/HostedView.hpp"

namespace orvane::desk {

class WindowServer;

/// One item of the open menu. Rectangles are in global coordinates.
struct MenuRow {
  std::size_t itemIndex = 0;
  CGRect frame{};
  /// The view of the item; null when it shows its title.
  std::shared_ptr<HostedView> view;
};

/// While a menu is open, the run loop is in its event-tracking mode, and pointer and key events go
/// to the menu only. An item's action may replace the items and close the menu.
class MenuTracker {
 public:
  using Menu = std::shared_ptr<DeskMenu>;

  explicit MenuTracker(WindowServer& server) : server_(server) {}

  /// Opens the status item's menu on the display with this index. False when there is no item with
  /// a menu, or while a modal session runs.
  bool openStatusMenu(std::size_t displayIndex);
  /// Opens a picker's menu after the caller has returned, with the selected item over the control.
  void openPopUp(const ui::MenuRequest& request, std::weak_ptr<HostedView> view);
  /// Closes the open menu, if any, without choosing an item.
  void close();

  [[nodiscard]] bool isOpen() const { return menu_ != nullptr; }
  [[nodiscard]] bool isTracking(const DeskMenu& menu) const { return menu_.get() == &menu; }
  [[nodiscard]] bool isStatusMenuOpen() const { return isOpen() && isStatusMenu_; }
  /// The index of the display on which the menu is open.
  [[nodiscard]] std::size_t displayIndex() const { return displayIndex_; }
  /// Null when none is open.
  [[nodiscard]] const DeskMenu* menu() const { return menu_.get(); }
  /// Empty when none is open; current after layOut.
  [[nodiscard]] const CGRect& frame() const { return frame_; }
  [[nodiscard]] const std::vector<MenuRow>& rows() const { return rows_; }
  /// Highlighted with the keyboard, or by the pointer over an item without a view.
  [[nodiscard]] std::optional<std::size_t> highlighted() const { return highlighted_; }

  /// True from a key that moved the highlight to the next pointer event. Meanwhile the row under
  /// the pointer is not hovered, so that no two rows look highlighted.
  [[nodiscard]] bool isNavigatedByKeys() const { return isNavigatedByKeys_; }
  /// To be called when the pointer moves or its button is pressed.
  void endKeyNavigation() { isNavigatedByKeys_ = false; }

  /// To be called when the items of a menu have changed.
  void itemsChanged(const DeskMenu& menu);
  /// Lays out the open menu if its items have changed.
  void layOut();
  /// The row at a point in global coordinates; null when there is none.
  [[nodiscard]] const MenuRow* rowAt(CGPoint place) const;
  void highlight(std::optional<std::size_t> itemIndex);

  /// Closes the menu, unless the item keeps it open, and runs the item's action. False for a
  /// separator and a disabled item.
  bool choose(std::size_t itemIndex);
  void keyDown(const ui::KeyEvent& event);
  void processEnded();

 private:
  void open(Menu menu);
  void moveHighlight(bool isDown);
  /// Highlights the next item whose title begins with these characters.
  void selectByTyping(const std::string& characters);
  void highlightByKey(std::size_t itemIndex);
  /// The item that Return chooses: the highlighted one, otherwise the one under the pointer.
  [[nodiscard]] std::optional<std::size_t> currentItem() const;
  [[nodiscard]] double widthOf(const appkit::MenuItem& item) const;
  [[nodiscard]] CGPoint origin(double width, double height) const;

  WindowServer& server_;
  Menu menu_;
  bool isStatusMenu_ = false;
  std::size_t displayIndex_ = 0;
  /// The frame of the status item or picker, in global coordinates.
  CGRect anchor_{};
  bool isStale_ = false;
  CGRect frame_{};
  std::vector<MenuRow> rows_;
  std::optional<std::size_t> highlighted_;
  bool isNavigatedByKeys_ = false;
};

}  // namespace orvane::desk
