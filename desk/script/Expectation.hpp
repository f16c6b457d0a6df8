// Expectations of scripts: a path into the JSON of an inspectable, and the expected value.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json_fwd.hpp>

#include "desk/script/Inspectables.hpp"

namespace orvane::desk::script {

/// Parses `written`; none when it is not JSON or has more than 100 levels.
[[nodiscard]] std::optional<Json> parseJson(std::string_view written);

/// The parts of a path such as "guard.zones.0.rect"; none when a part is empty.
[[nodiscard]] std::optional<std::vector<std::string>> parsePath(std::string_view path);

/// The value in `root` at `path`. A name is a key of an object, a whole number an index of an array
/// (a negative one from its end), and "#" at the end of the path the length of an array or object.
/// None when there is no such value.
[[nodiscard]] std::optional<Json> valueAt(const Json& root, const std::vector<std::string>& path);

/// The same in the JSON of `inspectable`, where a missing key of its counting member is 0.
[[nodiscard]] std::optional<Json> valueAt(const Inspectable& inspectable, const Json& shown,
                                          const std::vector<std::string>& path);

/// Whether the values are equal; the order of keys does not matter.
[[nodiscard]] bool isSameJson(const Json& first, const Json& second);

/// The message for a failed expectation.
[[nodiscard]] std::string failureText(std::string_view path, const Json& expected,
                                      const std::optional<Json>& got);

}  // namespace orvane::desk::script
