// The hardware panel beside the desktop: everything about the Mac that a hand can change, and what
// the desk counts.
#pragma once

#include <string>
#include <vector>

#include "Orvane/ui/views/View.hpp"
#include "showroom/hardware/HardwareContent.hpp"

namespace orvane::showroom {

/// Every control has a label. The hardware outlives the view.
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
  [[nodiscard]] ui::View figures() const;
  [[nodiscard]] ui::View words() const;
};

}  // namespace orvane::showroom
