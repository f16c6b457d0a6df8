// Formats lines of the script language.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "desk/windows/Surfaces.hpp"

namespace orvane::desk::explore {

using Lines = std::vector<std::string>;

/// In double quotes, with escapes.
[[nodiscard]] std::string quoted(std::string_view text);
/// Thousandths as a decimal number.
[[nodiscard]] std::string decimal(std::int64_t thousandths);
/// Rounded to thousandths.
[[nodiscard]] std::string decimal(double number);

/// A line that names the control at `index` of a surface by its label; `command` is "press" or
/// "hover".
[[nodiscard]] std::string controlLine(std::string_view command, const std::string& surface,
                                      const std::vector<SurfaceControl>& controls,
                                      std::size_t index);

}  // namespace orvane::desk::explore
