// Parsing and formatting of decimal numbers: digits with an optional sign and fraction.
#include "desk/script/Decimal.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace orvane::desk::script {

namespace {

constexpr std::int64_t nanosecondsPerSecond = 1'000'000'000;
constexpr std::size_t nanosecondDigits = 9;

struct Parts {
  bool isNegative = false;
  std::string_view whole;
  std::string_view fraction;
};

bool areDigits(std::string_view text) {
  return !text.empty() &&
         std::ranges::all_of(text, [](char digit) { return digit >= '0' && digit <= '9'; });
}

std::optional<Parts> partsOf(std::string_view text) {
  Parts parts;
  if (text.starts_with('-') || text.starts_with('+')) {
    parts.isNegative = text.front() == '-';
    text.remove_prefix(1);
  }
  const std::size_t point = text.find('.');
  parts.whole = text.substr(0, point);
  if (!areDigits(parts.whole)) {
    return std::nullopt;
  }
  if (point != std::string_view::npos) {
    parts.fraction = text.substr(point + 1);
    if (!areDigits(parts.fraction)) {
      return std::nullopt;
    }
  }
  return parts;
}

std::optional<std::int64_t> integerOf(std::string_view digits) {
  std::int64_t value = 0;
  const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  return result.ec == std::errc{} ? std::optional(value) : std::nullopt;
}

/// The first nine digits of the fraction as nanoseconds, rounded by the tenth.
std::int64_t fractionNanoseconds(std::string_view fraction) {
  std::string digits(fraction.substr(0, nanosecondDigits));
  digits.resize(nanosecondDigits, '0');
  const bool roundsUp = fraction.size() > nanosecondDigits && fraction[nanosecondDigits] >= '5';
  return integerOf(digits).value_or(0) + (roundsUp ? 1 : 0);
}

}  // namespace

std::optional<double> parseDecimal(std::string_view text) {
  if (!partsOf(text)) {
    return std::nullopt;
  }
  if (text.starts_with('+')) {
    text.remove_prefix(1);
  }
  double value = 0;
  const auto result =
      std::from_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
  if (result.ec != std::errc{} || !std::isfinite(value)) {
    return std::nullopt;
  }
  return value;
}

std::optional<std::int64_t> parseInteger(std::string_view text) {
  const std::optional<Parts> parts = partsOf(text);
  if (!parts || !parts->fraction.empty()) {
    return std::nullopt;
  }
  const std::optional<std::int64_t> magnitude = integerOf(parts->whole);
  return magnitude && parts->isNegative ? std::optional(-*magnitude) : magnitude;
}

std::optional<std::int64_t> parseNanoseconds(std::string_view seconds) {
  const std::optional<Parts> parts = partsOf(seconds);
  const std::optional<std::int64_t> whole = parts ? integerOf(parts->whole) : std::nullopt;
  constexpr std::int64_t wholeLimit =
      std::numeric_limits<std::int64_t>::max() / nanosecondsPerSecond - 1;
  if (!whole || *whole > wholeLimit) {
    return std::nullopt;
  }
  const std::int64_t magnitude =
      *whole * nanosecondsPerSecond + fractionNanoseconds(parts->fraction);
  return parts->isNegative ? -magnitude : magnitude;
}

std::string secondsText(std::int64_t nanoseconds) {
  std::string text = nanoseconds < 0 ? "-" : "";
  text += std::to_string(std::abs(nanoseconds / nanosecondsPerSecond));
  std::string fraction = std::to_string(std::abs(nanoseconds % nanosecondsPerSecond));
  fraction.insert(0, nanosecondDigits - fraction.size(), '0');
  fraction.erase(fraction.find_last_not_of('0') + 1);
  return fraction.empty() ? text : text + "." + fraction;
}

}  // namespace orvane::desk::script
