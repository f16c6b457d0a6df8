// What the script needs to know about UTF-8 text.
#include "desk/script/Utf8.hpp"

#include <algorithm>

namespace orvane::desk::script {

namespace {

/// The bytes that may follow a leading byte: how many, and the range of the first of them; the
/// others are continuation bytes 80 to BF.
struct Sequence {
  std::size_t followers;
  unsigned char lowest;
  unsigned char highest;
};

std::optional<Sequence> sequenceOf(unsigned char lead) {
  if (lead < 0x80) {
    return Sequence{0, 0, 0};
  }
  if (lead >= 0xC2 && lead <= 0xDF) {
    return Sequence{1, 0x80, 0xBF};
  }
  if (lead >= 0xE0 && lead <= 0xEF) {
    const auto lowest = static_cast<unsigned char>(lead == 0xE0 ? 0xA0 : 0x80);
    const auto highest = static_cast<unsigned char>(lead == 0xED ? 0x9F : 0xBF);
    return Sequence{2, lowest, highest};
  }
  if (lead >= 0xF0 && lead <= 0xF4) {
    const auto lowest = static_cast<unsigned char>(lead == 0xF0 ? 0x90 : 0x80);
    const auto highest = static_cast<unsigned char>(lead == 0xF4 ? 0x8F : 0xBF);
    return Sequence{3, lowest, highest};
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::size_t> findMalformedUtf8(std::string_view text) {
  std::size_t place = 0;
  while (place < text.size()) {
    const auto sequence = sequenceOf(static_cast<unsigned char>(text[place]));
    if (!sequence || text.size() - place <= sequence->followers) {
      return place;
    }
    for (std::size_t index = 1; index <= sequence->followers; ++index) {
      const auto byte = static_cast<unsigned char>(text[place + index]);
      const unsigned char lowest = index == 1 ? sequence->lowest : 0x80;
      const unsigned char highest = index == 1 ? sequence->highest : 0xBF;
      if (byte < lowest || byte > highest) {
        return place;
      }
    }
    place += 1 + sequence->followers;
  }
  return std::nullopt;
}

std::size_t characterCount(std::string_view text) {
  return static_cast<std::size_t>(std::ranges::count_if(
      text, [](char character) { return (static_cast<unsigned char>(character) & 0xC0) != 0x80; }));
}

}  // namespace orvane::desk::script
