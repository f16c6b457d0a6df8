// A pop-up button: shows the selected item and opens a menu of the platform to choose another.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "Orvane/ui/views/View.hpp"

namespace orvane::ui {

struct Picker {
  /// Its accessibility label; not shown.
  std::string label;
  std::vector<std::string> items;
  /// From 0; an index outside of the items shows an empty title.
  int selectedIndex = 0;
  /// Called with the index of the item chosen in the menu.
  std::function<void(int)> onChoose;

  View body(const Environment& environment) const;
};

}  // namespace orvane::ui
