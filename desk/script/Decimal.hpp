// Numbers as a script writes them: decimal digits with an optional sign and an optional fraction.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orvane::desk::script {

/// Each returns none for any other text, and for a number that its type cannot hold.
[[nodiscard]] std::optional<double> parseDecimal(std::string_view text);
/// Without a fraction.
[[nodiscard]] std::optional<std::int64_t> parseInteger(std::string_view text);
/// Seconds, as exact nanoseconds; further digits of the fraction are rounded to the nearest.
[[nodiscard]] std::optional<std::int64_t> parseNanoseconds(std::string_view seconds);

/// Nanoseconds as seconds in decimal, exact and without idle zeros: "1000.05".
[[nodiscard]] std::string secondsText(std::int64_t nanoseconds);

}  // namespace orvane::desk::script
