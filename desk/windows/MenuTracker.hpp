// MenuTracker shows one menu at a time and leads it until it is closed: the menu under the status
// item, or the pop-up menu of a picker.
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

/// While a menu is open the run loop is in its event-tracking mode, and pointer and keys go to the
/// menu only. Its items may be replaced, and it may be closed, from within an item's action.
class MenuTracker {
 public:
  using Menu = std::shared_ptr<DeskMenu>;

  explicit MenuTracker(WindowServer& server) : server_(server) {}

  /// Opens the status item's menu under the item on that display, by its place in the list. False
  /// when there is no item with a menu, or a modal session keeps it back.
  bool openStatusMenu(std::size_t displayIndex);
  /// Opens a picker's menu, its selected item over the control, once the caller has returned.
  void openPopUp(const ui::MenuRequest& request, std::weak_ptr<HostedView> view);
  /// Closes the open menu without choosing anything.
  void close();

  [[nodiscard]] bool isOpen() const { return menu_ != nullptr; }
  [[nodiscard]] bool isTracking(const DeskMenu& menu) const { return menu_.get() == &menu; }
  [[nodiscard]] bool isStatusMenuOpen() const { return isOpen() && isStatusMenu_; }
  /// The display that a status menu is open on.
  [[nodiscard]] std::size_t displayIndex() const { return displayIndex_; }
  /// Null when none is open.
  [[nodiscard]] const DeskMenu* menu() const { return menu_.get(); }
  /// Empty when none is open; current after layOut.
  [[nodiscard]] const CGRect& frame() const { return frame_; }
  [[nodiscard]] const std::vector<MenuRow>& rows() const { return rows_; }
  /// The item that the keyboard, or the pointer over an item without a view, has reached.
  [[nodiscard]] std::optional<std::size_t> highlighted() const { return highlighted_; }

  /// True from a key that moved the highlight to the next movement of the pointer: meanwhile what
  /// is under the pointer is not hovered over, so that no two rows look chosen.
  [[nodiscard]] bool isLedByKeys() const { return isLedByKeys_; }
  /// The pointer has moved or was pressed.
  void pointerTakesOver();

  /// The items of a menu are others now.
  void itemsChanged(const DeskMenu& menu);
  /// Places the rows of the open menu if its items have changed.
  void layOut();
  /// The row there; null when there is none.
  [[nodiscard]] const MenuRow* rowAt(CGPoint place) const;
  void highlight(std::optional<std::size_t> itemIndex);

  /// Chooses an item as the keyboard does: the menu closes first unless the item keeps it open.
  /// False for an item that is a separator or disabled.
  bool choose(std::size_t itemIndex);
  void keyDown(const ui::KeyEvent& event);
  void processEnded();

 private:
  void open(Menu menu);
  void moveHighlight(bool isDown);
  /// The next item, after the present one, whose title begins with these characters.
  void selectByTyping(const std::string& characters);
  void highlightByKey(std::size_t itemIndex);
  /// What the keyboard would choose: the highlighted item, else the one under the pointer.
  [[nodiscard]] std::optional<std::size_t> reached() const;
  [[nodiscard]] double widthOf(const appkit::MenuItem& item) const;
  [[nodiscard]] CGPoint origin(double width, double height) const;

  WindowServer& server_;
  Menu menu_;
  bool isStatusMenu_ = false;
  std::size_t displayIndex_ = 0;
  /// What the menu belongs to: the status item or the picker, in global coordinates.
  CGRect anchor_{};
  bool isStale_ = false;
  CGRect frame_{};
  std::vector<MenuRow> rows_;
  std::optional<std::size_t> highlighted_;
  bool isLedByKeys_ = false;
};

}  // namespace orvane::desk
