// A capsule with a word that says whether a mode is on.
#pragma once

#include <string>

#include "Orvane/ui/views/View.hpp"

namespace orvane {

struct StatusPill {
  std::string text;
  bool isActive = false;

  [[nodiscard]] ui::View body(const ui::Environment& environment) const;
};

}  // namespace orvane
