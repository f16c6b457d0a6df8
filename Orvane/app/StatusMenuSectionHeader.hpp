// The heading of a section of the status menu.
#pragma once

#include <string>

#include "Orvane/ui/views/View.hpp"

namespace orvane {

struct StatusMenuSectionHeader {
  /// In points.
  static constexpr double height = 26;

  std::string title;

  ui::View body(const ui::Environment& environment) const;
};

}  // namespace orvane
