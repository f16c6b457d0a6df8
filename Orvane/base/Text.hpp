// Small operations on UTF-8 text that the standard library lacks.
#pragma once

#include <string>
#include <string_view>

namespace orvane {

/// `text` without the white space and line breaks at both ends: Unicode's space separators, the
/// tabulator and the line and paragraph breaks.
[[nodiscard]] std::string_view trimmed(std::string_view text);

/// `text` with the letters A to Z in lower case; all other bytes are unchanged.
[[nodiscard]] std::string asciiLowercased(std::string_view text);

/// A language or locale identifier normalised for comparison: trimmed, with "-" for every "_", in
/// lower case.
[[nodiscard]] std::string normalizedLocaleIdentifier(std::string_view identifier);

}  // namespace orvane
