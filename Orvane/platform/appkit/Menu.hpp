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

/// One entry of a menu, as it is to be made.
struct MenuItem {
  /// What VoiceOver reads and type selection finds; not drawn when there is a view.
  std::string title;
  bool isSeparator = false;
  bool isEnabled = true;
  /// A switch that is on, or the choice that is in force: told by VoiceOver, and marked where there
  /// is no view.
  bool isOn = false;
  /// Drawn instead of the title.
  std::optional<HostingView> view;
  /// Run when the item is chosen by the keyboard or by VoiceOver, and by a click where there is no
  /// view.
  std::function<void()> action;
  /// Whether choosing the item leaves the menu open.
  bool keepsMenuOpen = false;

  [[nodiscard]] static MenuItem separator() {
    MenuItem item;
    item.isSeparator = true;
    return item;
  }
};

/// A handle; copies name the same menu. Main thread only. Items may come, change and go while it is
/// open. Each index is that of an item, or the number of items where one is inserted.
class Menu {
 public:
  Menu();

  void insertItem(std::size_t index, MenuItem item);
  /// The item, which is no separator, becomes as this one, also while it is being chosen. The view
  /// that it shows stays where it is when it is the same.
  void changeItem(std::size_t index, MenuItem item);
  void removeItem(std::size_t index);

  [[nodiscard]] bool isOpen() const;
  /// Called when the menu is about to be shown.
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
