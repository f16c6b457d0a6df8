// JSON in the format that scripts print.
#include "desk/script/JsonText.hpp"

#include <array>
#include <charconv>
#include <cmath>

#include <nlohmann/json.hpp>

#include "desk/script/Decimal.hpp"

namespace orvane::desk::script {

namespace {

using Json = nlohmann::ordered_json;

std::string numberText(double number) {
  if (!std::isfinite(number)) {
    return "null";
  }
  if (number == 0) {
    return "0";
  }
  // The smallest positive double has 1074 digits after the point, of which at most 17 are
  // significant; the greatest has 309 digits before it.
  std::array<char, 400> buffer{};
  const auto result =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::fixed);
  return {buffer.data(), result.ptr};
}

std::string textText(const Json& text) {
  return text.dump(-1, ' ', false, Json::error_handler_t::replace);
}

}  // namespace

std::string jsonText(const Json& value) {
  if (value.is_number_float()) {
    return numberText(value.get<double>());
  }
  if (!value.is_structured()) {
    return textText(value);
  }
  std::string text;
  for (const auto& [key, element] : value.items()) {
    text += text.empty() ? "" : ",";
    text += (value.is_object() ? textText(key) + ":" : "") + jsonText(element);
  }
  return value.is_object() ? "{" + text + "}" : "[" + text + "]";
}

Json jsonRectangle(const CGRect& rect) {
  return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

double jsonSeconds(std::int64_t nanoseconds) {
  return parseDecimal(secondsText(nanoseconds)).value_or(0);
}

}  // namespace orvane::desk::script
