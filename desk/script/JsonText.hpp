// JSON in the format that scripts print.
#pragma once

#include <cstdint>
#include <string>

#include <nlohmann/json_fwd.hpp>

#include "Orvane/platform/Quartz.hpp"

namespace orvane::desk::script {

/// On one line, without white space. A number is the shortest decimal that reads back as the same
/// double, without an exponent; one that is not finite becomes null. Malformed UTF-8 becomes the
/// replacement character.
[[nodiscard]] std::string jsonText(const nlohmann::ordered_json& value);

/// [x, y, w, h].
[[nodiscard]] nlohmann::ordered_json jsonRectangle(const CGRect& rect);

/// Seconds as a number: the double nearest to the exact decimal.
[[nodiscard]] double jsonSeconds(std::int64_t nanoseconds);

}  // namespace orvane::desk::script
