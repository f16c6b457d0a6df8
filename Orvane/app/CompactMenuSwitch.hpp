// A small switch that only shows a state; its row handles the clicks.
#pragma once

#include "Orvane/ui/views/View.hpp"

namespace orvane {

struct CompactMenuSwitch {
  bool isOn = false;

  ui::View body(const ui::Environment& environment) const;
};

}  // namespace orvane
