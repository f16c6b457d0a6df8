// Recognises the steps that operate a control with a known label, in either language.
#pragma once

#include <string_view>

#include "desk/explore/Language.hpp"
#include "desk/explore/Step.hpp"

namespace orvane::desk::explore {

/// Whether the step is a press of the control with this label.
[[nodiscard]] bool presses(const Step& step, const char* Labels::*label, std::string_view surface);
/// Whether the step picks `item` of the pop-up button with this label in the settings.
[[nodiscard]] bool picks(const Step& step, const char* Labels::*label, std::string_view item);

}  // namespace orvane::desk::explore
