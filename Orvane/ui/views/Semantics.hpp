// The semantics tree: what users of a screen reader, tests and scripts can perceive and do.
#pragma once

#include <cstdint>
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
  scrollArea
};

struct SemanticsNode {
  /// That of the node. It stays while the view keeps its identity, and is never reused.
  std::uint64_t id = 0;
  Role role = Role::group;
  std::string label = {};
  std::string value = {};
  /// The full texts in it that are drawn truncated, which the host also offers as its tooltip;
  /// empty when none is.
  std::string cutText = {};
  /// Whether it can be pressed while it is enabled.
  bool isControl = false;
  bool isEnabled = true;
  bool isSelected = false;
  bool isFocusable = false;
  bool isFocused = false;
  /// As presented, in host coordinates.
  Rect frame = {};
  std::vector<SemanticsNode> children = {};
};

/// Such as "button".
[[nodiscard]] const char* roleName(Role role);

}  // namespace orvane::ui
