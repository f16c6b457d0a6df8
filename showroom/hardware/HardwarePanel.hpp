// HardwarePanel is the view beside the desktop: controls for the simulated hardware and system, and
// the desk's counters.
#pragma once

#include <string>
#include <vector>

#include "Orvane/ui/views/View.hpp"
#include "showroom/hardware/HardwareContent.hpp"

namespace orvane::showroom {

/// Every control has an accessibility label. The hardware must outlive the view.
struct HardwarePanel {
  /// In points.
  static constexpr double width = 320;

  HardwareContent content;
  Hardware* hardware = nullptr;

  ui::View body(const ui::Environment& environment) const;

 private:
  [[nodiscard]] ui::View displays() const;
  [[nodiscard]] ui::View displayRow(const HardwareDisplay& display) const;
  [[nodiscard]] ui::View dock() const;
  [[nodiscard]] ui::View mac() const;
  [[nodiscard]] ui::View application() const;
  [[nodiscard]] ui::View counters() const;
  [[nodiscard]] ui::View messages() const;
};

}  // namespace orvane::showroom
