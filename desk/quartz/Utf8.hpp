// Utf8 validates and measures UTF-8 text.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace orvane::desk {

class Utf8 {
 public:
  Utf8() = delete;

  /// The length of a valid text in UTF-16 units.
  [[nodiscard]] static std::size_t lengthInUtf16(std::string_view text);
  [[nodiscard]] static bool isValid(std::string_view text) { return !findInvalid(text); }
  /// Where the first form stands that is not valid: a misplaced byte, an overlong form, a
  /// surrogate, or a code point beyond 10FFFF. None when there is none.
  [[nodiscard]] static std::optional<std::size_t> findInvalid(std::string_view text);
};

}  // namespace orvane::desk
