// A row of the hardware panel with a segmented control.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "Orvane/ui/views/View.hpp"

namespace orvane::showroom {

struct HardwareChoice {
  std::string title;
  std::vector<std::string> items;
  std::optional<std::size_t> selected;
  std::function<void(std::size_t)> onChoose;

  ui::View body(const ui::Environment& environment) const;

 private:
  [[nodiscard]] ui::View segment(std::size_t index, const ui::Environment& environment) const;
};

}  // namespace orvane::showroom
