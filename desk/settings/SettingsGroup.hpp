// A box of rows in the System Settings, with hairlines between them.
#pragma once

#include <string>
#include <vector>

#include "Orvane/ui/views/View.hpp"

namespace orvane::desk {

struct SettingsGroup {
  std::vector<ui::View> rows;
  /// How far the hairlines keep from the leading edge, in points.
  double hairlineInset = 10;
  /// Whether something that is dragged would be dropped here.
  bool isHighlighted = false;

  ui::View body(const ui::Environment& environment) const;

  /// The usual row: a title, and what belongs to it at the end.
  [[nodiscard]] static ui::View row(const std::string& title, const ui::View& end);
  /// The same with a text at the end.
  [[nodiscard]] static ui::View row(const std::string& title, const std::string& value);
};

}  // namespace orvane::desk
