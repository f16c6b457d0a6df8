// Lines of the script language, written from numbers and texts.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "desk/windows/Surfaces.hpp"

namespace orvane::desk::explore {

using Lines = std::vector<std::string>;

/// In double quotes, as the language reads it.
[[nodiscard]] std::string quoted(std::string_view text);
/// A number of thousandths in decimal.
[[nodiscard]] std::string decimal(std::int64_t thousandths);
/// The nearest number of thousandths, in decimal.
[[nodiscard]] std::string decimal(double number);

/// A line that operates the control at `index` of those of a surface by its label: `command` is
/// "press" or "hover".
[[nodiscard]] std::string controlLine(std::string_view command, const std::string& surface,
                                      const std::vector<SurfaceControl>& controls,
                                      std::size_t index);

}  // namespace orvane::desk::explore
