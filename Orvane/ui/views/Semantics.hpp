// The tree of what a user of a screen reader, a test or a script can perceive and do.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Orvane/ui/layout/Rect.hpp"

namespace orvane::ui {

enum class Role {
  group,
  staticText,
  heading,
  image,
  button,
  toggle,
  radioButton,
  popUpButton,
  link,
  scrollArea
};

enum class SemanticsAction { press };

struct SemanticsNode {
  // Stays the same while the view keeps its place; never used again for another one.
  std::uint64_t id = 0;
  Role role = Role::group;
  std::string label;
  std::string value;
  // In full, the texts in it of which not all is drawn; empty when nothing is cut. The host's
  // tooltip over it says the same, unless a view there has one of its own.
  std::string cutText;
  bool isEnabled = true;
  bool isSelected = false;
  bool isFocusable = false;
  bool isFocused = false;
  // As presented, in the host's coordinates.
  Rect frame;
  std::vector<SemanticsAction> actions;
  std::vector<SemanticsNode> children;

  bool isControl() const { return !actions.empty(); }
};

// What a view changes about the element it describes; what is empty stays as it was.
struct SemanticsChange {
  std::optional<Role> role;
  std::optional<std::string> label;
  std::optional<std::string> value;
  std::optional<bool> isSelected;
  bool isHidden = false;
};

// A role's name in words, such as "button".
const char* roleName(Role role);

}  // namespace orvane::ui
