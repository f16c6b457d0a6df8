// A short word in a capsule that tells whether a mode is on.
#pragma once

#include <string>

#include "Orvane/ui/views/View.hpp"

namespace orvane {

struct StatusPill {
  std::string text;
  bool isActive = false;

  ui::View body(const ui::Environment& environment) const;
};

}  // namespace orvane
