// A box of rows with hairlines between them.
#pragma once

#include <vector>

#include "Orvane/ui/views/View.hpp"

namespace orvane::desk {

struct SettingsGroup {
  std::vector<ui::View> rows;
  /// The distance of the hairlines from the leading edge, in points.
  double hairlineInset = 10;
  /// Whether it is a drop target under a drag.
  bool isHighlighted = false;

  ui::View body(const ui::Environment& environment) const;
};

}  // namespace orvane::desk
