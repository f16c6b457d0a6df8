// Small operations on UTF-8 text that the standard library lacks.
#include "Orvane/base/Text.hpp"

#include <algorithm>
#include <array>

namespace orvane {

namespace {

// The UTF-8 forms of the characters that count as white space or line breaks: category Zs, the
// tabulator, U+000A to U+000D, U+0085, U+2028 and U+2029.
constexpr std::array<std::string_view, 25> blanks = {" ",
                                                     "\t",
                                                     "\n",
                                                     "\v",
                                                     "\f",
                                                     "\r",
                                                     "\xC2\x85",
                                                     "\xC2\xA0",
                                                     "\xE1\x9A\x80",
                                                     "\xE2\x80\x80",
                                                     "\xE2\x80\x81",
                                                     "\xE2\x80\x82",
                                                     "\xE2\x80\x83",
                                                     "\xE2\x80\x84",
                                                     "\xE2\x80\x85",
                                                     "\xE2\x80\x86",
                                                     "\xE2\x80\x87",
                                                     "\xE2\x80\x88",
                                                     "\xE2\x80\x89",
                                                     "\xE2\x80\x8A",
                                                     "\xE2\x80\xA8",
                                                     "\xE2\x80\xA9",
                                                     "\xE2\x80\xAF",
                                                     "\xE2\x81\x9F",
                                                     "\xE3\x80\x80"};

}  // namespace

std::string_view trimmed(std::string_view text) {
  const auto leads = [&](std::string_view blank) { return text.starts_with(blank); };
  for (const auto* blank = std::ranges::find_if(blanks, leads); blank != blanks.end();
       blank = std::ranges::find_if(blanks, leads)) {
    text.remove_prefix(blank->size());
  }
  const auto trails = [&](std::string_view blank) { return text.ends_with(blank); };
  for (const auto* blank = std::ranges::find_if(blanks, trails); blank != blanks.end();
       blank = std::ranges::find_if(blanks, trails)) {
    text.remove_suffix(blank->size());
  }
  return text;
}

std::string asciiLowercased(std::string_view text) {
  std::string lowered(text);
  for (char& character : lowered) {
    if (character >= 'A' && character <= 'Z') {
      character = static_cast<char>(character - 'A' + 'a');
    }
  }
  return lowered;
}

std::string normalizedLocaleIdentifier(std::string_view identifier) {
  std::string normalized = asciiLowercased(trimmed(identifier));
  std::replace(normalized.begin(), normalized.end(), '_', '-');
  return normalized;
}

}  // namespace orvane
