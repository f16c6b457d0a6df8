// Reduces a failing list of lines.
#pragma once

#include <functional>

#include "desk/explore/Lines.hpp"

namespace orvane::desk::explore {

/// `stillFails` must hold for `lines`. It holds for the result, too, but for none that lacks one
/// more line. Delta debugging: Zeller and Hildebrandt, "Simplifying and isolating
/// failure-inducing input", IEEE Transactions on Software Engineering 28 (2), 2002.
[[nodiscard]] Lines shrunk(Lines lines, const std::function<bool(const Lines&)>& stillFails);

}  // namespace orvane::desk::explore
