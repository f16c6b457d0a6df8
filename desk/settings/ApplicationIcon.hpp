// The icon of an application in the lists of the System Settings.
#pragma once

#include <string>

#include "Orvane/ui/views/View.hpp"

namespace orvane::desk {

struct ApplicationIcon {
  std::string name;
  /// In points.
  double side = 24;

  ui::View body(const ui::Environment& environment) const;
};

}  // namespace orvane::desk
