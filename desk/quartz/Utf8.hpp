// Utf8 checks and measures text as Unicode's encoding form UTF-8 demands.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace orvane::desk {

class Utf8 {
 public:
  Utf8() = delete;

  /// The length in UTF-16 units; none when `text` is not valid: a byte out of place, a form longer
  /// than needed, a surrogate, or a number beyond 10FFFF.
  [[nodiscard]] static std::optional<std::size_t> lengthInUtf16(std::string_view text);
  [[nodiscard]] static bool isValid(std::string_view text) { return !findInvalid(text); }
  /// Where the first form stands that is not valid; none when there is none.
  [[nodiscard]] static std::optional<std::size_t> findInvalid(std::string_view text);
};

}  // namespace orvane::desk
