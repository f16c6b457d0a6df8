// A small switch that only shows a state; the row that it stands in does the switching.
#pragma once

#include "Orvane/ui/views/View.hpp"

namespace orvane {

struct CompactMenuSwitch {
  bool isOn = false;

  ui::View body(const ui::Environment& environment) const;
};

}  // namespace orvane
