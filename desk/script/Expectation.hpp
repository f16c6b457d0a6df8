// Expectation is what a script expects to hold: a value at a path in something that can be shown.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json_fwd.hpp>

#include "desk/script/InspectableTable.hpp"

namespace orvane::desk::script {

/// Reads `written` as JSON; none when it is not JSON, or nested deeper than 100 levels.
[[nodiscard]] std::optional<Json> parseJson(std::string_view written);

/// "guard.zones.0.rect" cut at its dots; none when a part is empty.
[[nodiscard]] std::optional<std::vector<std::string>> parsePath(std::string_view path);

/// What stands in `root` at `path`: a name is a key of an object, a whole number an index of an
/// array, a negative one from its end, "#" at the end of the path the length of an array or object.
/// None when there is no such place.
[[nodiscard]] std::optional<Json> valueAt(const Json& root, const std::vector<std::string>& path);

/// The same in what was seen of `inspectable`, where a key that its counting member does not hold
/// is 0.
[[nodiscard]] std::optional<Json> valueAt(const Inspectable& inspectable, const Json& shown,
                                          const std::vector<std::string>& path);

/// Whether both are the same value; the order of the keys of an object does not matter.
[[nodiscard]] bool isSameJson(const Json& first, const Json& second);

/// The report on an expectation that failed.
[[nodiscard]] std::string failureText(std::string_view path, const Json& expected,
                                      const std::optional<Json>& got);

}  // namespace orvane::desk::script
