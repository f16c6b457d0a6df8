// A synthetic panel of about 150 views for measurements: a head, four cards, six rows with switches
// and two buttons. The same panel is built with two other toolkits in bench/peers.
#pragma once

#include "Orvane/ui/views/View.hpp"

namespace orvane::bench {

struct KitPanel {
  /// In points.
  static constexpr double width = 640;
  static constexpr double height = 430;

  /// Part of one text, so that two descriptions differ.
  int revision = 0;

  ui::View body(const ui::Environment& environment) const;
};

}  // namespace orvane::bench
