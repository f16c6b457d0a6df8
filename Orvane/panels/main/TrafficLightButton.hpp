// One of the round buttons at the leading end of the title bar.
#pragma once

#include <functional>
#include <string>

#include "Orvane/ui/views/View.hpp"

namespace orvane {

struct TrafficLightButton {
  ui::Color color;
  ui::Color stroke;
  ui::Color hoverIconColor;
  /// The name of a system symbol.
  std::string hoverSystemImage;
  /// Both lights show their symbols while the pointer is over either.
  bool showsHoverIcon = false;
  /// For screen readers.
  std::string label;
  std::function<void()> action;

  [[nodiscard]] static TrafficLightButton close(bool showsHoverIcon, std::string label,
                                                std::function<void()> action);
  [[nodiscard]] static TrafficLightButton minimise(bool showsHoverIcon, std::string label,
                                                   std::function<void()> action);

  [[nodiscard]] ui::View body(const ui::Environment& environment) const;
};

}  // namespace orvane
