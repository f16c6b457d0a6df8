// Shrink finds a short list of lines that still breaks the same promise.
#pragma once

#include <functional>
#include <string>

#include "desk/explore/Lines.hpp"

namespace orvane::desk::explore {

/// `stillFails` must hold for `lines`. What is returned fails too, and no longer does when any one
/// of its lines is left out. Delta debugging: Zeller and Hildebrandt, "Simplifying and isolating
/// failure-inducing input", IEEE Transactions on Software Engineering 28 (2), 2002.
[[nodiscard]] Lines shrunk(Lines lines, const std::function<bool(const Lines&)>& stillFails);

}  // namespace orvane::desk::explore
