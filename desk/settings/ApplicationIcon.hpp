// The icon of an application in System Settings.
#pragma once

#include <string>

#include "Orvane/ui/views/View.hpp"

namespace orvane::desk {

struct ApplicationIcon {
  std::string name;
  /// Width and height, in points.
  double side = 24;

  ui::View body(const ui::Environment& environment) const;
};

}  // namespace orvane::desk
