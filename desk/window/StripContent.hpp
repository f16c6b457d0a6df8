// What the strip below the desktop says: the keys with their state, and figures.
#pragma once

#include <string>
#include <vector>

#include "desk/window/DeskSession.hpp"

namespace orvane::desk {

struct StripKey {
  std::string key;
  std::string label;
  std::string state;
  bool isOn = false;
  bool operator==(const StripKey&) const = default;
};

struct StripFigure {
  std::string label;
  std::string value;
  bool operator==(const StripFigure&) const = default;
};

struct StripContent {
  std::vector<StripKey> keys;
  std::vector<StripFigure> figures;
  /// What to do with the mouse, and the guard's last word.
  std::string hint;
  std::string message;
  bool isDark = false;
  bool operator==(const StripContent&) const = default;

  /// `isMouseHeld` says whether the window has captured the mouse.
  static StripContent of(const DeskSession& session, bool isMouseHeld);
};

}  // namespace orvane::desk
