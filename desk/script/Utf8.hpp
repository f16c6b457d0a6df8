// What the script needs to know about UTF-8 text.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace orvane::desk::script {

/// Where the first byte stands that belongs to no well-formed character (Unicode 15, table 3-7: no
/// overlong form, no surrogate, nothing above U+10FFFF); none when there is no such byte.
[[nodiscard]] std::optional<std::size_t> findMalformedUtf8(std::string_view text);

/// Of well-formed text, the number of its characters (code points).
[[nodiscard]] std::size_t characterCount(std::string_view text);

}  // namespace orvane::desk::script
