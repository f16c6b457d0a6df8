// The controls of the hardware panel.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "Orvane/ui/views/View.hpp"

namespace orvane::showroom {

/// A small push button.
[[nodiscard]] ui::View hardwareButton(const std::string& title, const std::string& label,
                                      std::function<void()> action);

/// A row with a switch. `onChange` receives the new state.
[[nodiscard]] ui::View hardwareSwitch(const std::string& title, bool isOn,
                                      const std::function<void(bool isOn)>& onChange);

/// A row with a segmented control.
[[nodiscard]] ui::View hardwareChoice(const std::string& title, std::vector<std::string> items,
                                      std::optional<std::size_t> selected,
                                      std::function<void(std::size_t index)> onChoose);

}  // namespace orvane::showroom
