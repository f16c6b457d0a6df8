// Parsing and formatting of decimal numbers: digits with an optional sign and fraction.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orvane::desk::script {

/// The parsers return none for any other text, and for a number out of the range of the type.
[[nodiscard]] std::optional<double> parseDecimal(std::string_view text);
/// Without a fraction.
[[nodiscard]] std::optional<std::int64_t> parseInteger(std::string_view text);
/// Seconds as exact nanoseconds, rounded to the nearest.
[[nodiscard]] std::optional<std::int64_t> parseNanoseconds(std::string_view seconds);

/// Nanoseconds as decimal seconds, exact and without trailing zeros: "1000.05".
[[nodiscard]] std::string secondsText(std::int64_t nanoseconds);

}  // namespace orvane::desk::script
