// Menus whose items may hold views; NSMenu and NSMenuItem on a Mac.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "Orvane/platform/appkit/HostingView.hpp"

namespace orvane::appkit {

/// The description of one menu item.
struct MenuItem {
  /// For VoiceOver and type selection; not drawn when there is a view.
  std::string title;
  bool isSeparator = false;
  bool isEnabled = true;
  /// A switch that is on, or the selected choice. VoiceOver reads it; without a view it has a check
  /// mark.
  bool isOn = false;
  /// Drawn instead of the title.
  std::optional<HostingView> view;
  /// Run when the item is chosen by keyboard or VoiceOver or, without a view, by a click.
  std::function<void()> action;
  /// Whether choosing the item leaves the menu open.
  bool keepsMenuOpen = false;

  [[nodiscard]] static MenuItem separator() {
    MenuItem item;
    item.isSeparator = true;
    return item;
  }
};

/// A handle; copies refer to the same menu. Main thread only. Items may be inserted, changed and
/// removed while the menu is open. An index must be that of an item; for insertion it may also be
/// the number of items.
class Menu {
 public:
  Menu();

  void insertItem(std::size_t index, MenuItem item);
  /// Updates the item, which must not be a separator, to match `item`, even while it is being
  /// chosen. If the view is the same, it stays in place.
  void changeItem(std::size_t index, MenuItem item);
  void removeItem(std::size_t index);

  [[nodiscard]] bool isOpen() const;
  /// `willOpen` is called when the menu is about to be shown.
  void onWillOpen(std::function<void()> willOpen);
  /// Closes the menu if it is open, without choosing anything. `ended`, which may be null, is
  /// called once the caller has returned and no menu is open.
  void cancelTracking(std::function<void()> ended = nullptr);

  struct Implementation;
  [[nodiscard]] const std::shared_ptr<Implementation>& implementation() const {
    return implementation_;
  }

 private:
  std::shared_ptr<Implementation> implementation_;
};

}  // namespace orvane::appkit
