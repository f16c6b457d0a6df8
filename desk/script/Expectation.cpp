// Expectations of scripts: a path into the JSON of an inspectable, and the expected value.
#include "desk/script/Expectation.hpp"

#include <algorithm>
#include <cstddef>
#include <utility>

#include <nlohmann/json.hpp>

#include "desk/script/Arguments.hpp"
#include "desk/script/Decimal.hpp"
#include "desk/script/JsonText.hpp"

namespace orvane::desk::script {

namespace {

constexpr int deepestNesting = 100;
constexpr std::string_view lengthStep = "#";

/// Null when there is no such value.
const Json* step(const Json& value, const std::string& part) {
  if (value.is_object()) {
    const auto found = value.find(part);
    return found != value.end() ? &*found : nullptr;
  }
  const std::optional<std::int64_t> index = value.is_array() ? parseInteger(part) : std::nullopt;
  if (index) {
    const auto count = static_cast<std::int64_t>(value.size());
    const std::int64_t place = *index < 0 ? count + *index : *index;
    if (place >= 0 && place < count) {
      return &value[static_cast<std::size_t>(place)];
    }
  }
  return nullptr;
}

}  // namespace

std::optional<Json> parseJson(std::string_view written) {
  bool isTooDeep = false;
  const auto note = [&isTooDeep](int depth, Json::parse_event_t event, const Json&) {
    const bool opens =
        event == Json::parse_event_t::array_start || event == Json::parse_event_t::object_start;
    isTooDeep = isTooDeep || (opens && depth >= deepestNesting);
    return !isTooDeep;
  };
  Json value = Json::parse(written, note, /*allow_exceptions=*/false);
  return isTooDeep || value.is_discarded() ? std::nullopt : std::optional(std::move(value));
}

std::optional<std::vector<std::string>> parsePath(std::string_view path) {
  std::vector<std::string> parts = split(path, '.');
  const bool isPath = !parts.empty() && std::ranges::find(parts, "") == parts.end();
  return isPath ? std::optional(std::move(parts)) : std::nullopt;
}

std::optional<Json> valueAt(const Json& root, const std::vector<std::string>& path) {
  const Json* value = &root;
  for (std::size_t index = 0; index < path.size(); ++index) {
    const std::string& part = path[index];
    if (part == lengthStep && index + 1 == path.size() && value->is_structured()) {
      return Json(value->size());
    }
    value = step(*value, part);
    if (value == nullptr) {
      return std::nullopt;
    }
  }
  return *value;
}

std::optional<Json> valueAt(const Inspectable& inspectable, const Json& shown,
                            const std::vector<std::string>& path) {
  std::optional<Json> value = valueAt(shown, path);
  const bool isCount = path.size() == 2 && !inspectable.countingMember.empty() &&
                       path.front() == inspectable.countingMember;
  return !value && isCount ? std::optional(Json(0)) : value;
}

bool isSameJson(const Json& first, const Json& second) {
  return nlohmann::json(first) == nlohmann::json(second);
}

std::string failureText(std::string_view path, const Json& expected,
                        const std::optional<Json>& got) {
  return "expected " + std::string(path) + " = " + jsonText(expected) + ", got " +
         (got ? jsonText(*got) : "nothing");
}

}  // namespace orvane::desk::script
