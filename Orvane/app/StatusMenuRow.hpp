// A row of the status menu: an icon badge, a title, and an optional switch.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "Orvane/ui/views/View.hpp"

namespace orvane {

struct StatusMenuRow {
  /// In points.
  static constexpr double rowHeight = 30;

  std::string title;
  /// The name of a system symbol.
  std::string systemImage;
  bool isSelected = false;
  /// A disabled row is dimmed and ignores clicks.
  bool isEnabled = true;
  /// The state of the row's switch; none without a switch.
  std::optional<bool> isOn = std::nullopt;
  /// In points.
  double rowWidth = 208;
  std::function<void()> action = nullptr;

  ui::View body(const ui::Environment& environment) const;

 private:
  [[nodiscard]] ui::View iconBadge() const;
  [[nodiscard]] ui::View content(bool isHovered) const;
};

}  // namespace orvane
