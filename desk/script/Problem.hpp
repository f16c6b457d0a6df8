// Problem is what is wrong with a script, in words for its author.
#pragma once

#include <optional>
#include <string>

namespace orvane::desk::script {

/// None when nothing is wrong. Without a final full stop and without the place, which whoever knows
/// file and line puts before it.
using Problem = std::optional<std::string>;

}  // namespace orvane::desk::script
