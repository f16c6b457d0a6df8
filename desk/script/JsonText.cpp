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

std::string arrayText(const Json& array) {
  std::string text = "[";
  for (const Json& element : array) {
    text += text.size() > 1 ? "," : "";
    text += jsonText(element);
  }
  return text + "]";
}

std::string objectText(const Json& object) {
  std::string text = "{";
  for (const auto& [key, value] : object.items()) {
    text += text.size() > 1 ? "," : "";
    text += textText(key) + ":" + jsonText(value);
  }
  return text + "}";
}

}  // namespace

std::string jsonText(const Json& value) {
  if (value.is_object()) {
    return objectText(value);
  }
  if (value.is_array()) {
    return arrayText(value);
  }
  if (value.is_number_float()) {
    return numberText(value.get<double>());
  }
  return textText(value);
}

Json jsonRectangle(const CGRect& rect) {
  return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

double jsonSeconds(std::int64_t nanoseconds) {
  return parseDecimal(secondsText(nanoseconds)).value_or(0);
}

}  // namespace orvane::desk::script
