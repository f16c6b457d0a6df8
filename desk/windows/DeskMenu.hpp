// DeskMenu is a menu's content: its items and its open callback.
#pragma once

#include <functional>
#include <vector>

#include "Orvane/platform/appkit/Menu.hpp"

namespace orvane::desk {

struct DeskMenu {
  DeskMenu() = default;
  DeskMenu(const DeskMenu&) = delete;
  DeskMenu& operator=(const DeskMenu&) = delete;
  virtual ~DeskMenu() = default;

  std::vector<appkit::MenuItem> items;
  /// The item with the check mark of a pop-up menu; -1 for none.
  int checkedIndex = -1;
  std::function<void()> willOpen;
};

}  // namespace orvane::desk
