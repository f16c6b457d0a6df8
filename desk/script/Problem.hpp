// Problem is an error in a script, in words for its author.
#pragma once

#include <optional>
#include <string>

namespace orvane::desk::script {

/// None on success. Without a final full stop; the caller prepends file and line.
using Problem = std::optional<std::string>;

}  // namespace orvane::desk::script
