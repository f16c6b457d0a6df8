// The decoder follows table 3-7 of the Unicode Standard.
#include "desk/quartz/Utf8.hpp"

namespace orvane::desk {

namespace {

struct Form {
  std::size_t length;
  unsigned char secondLow;
  unsigned char secondHigh;
};

/// The length of a sequence and the range of its second byte; length 0 for an invalid first byte.
Form formOf(unsigned char first) {
  if (first < 0x80) {
    return {1, 0, 0};
  }
  if (first >= 0xC2 && first <= 0xDF) {
    return {2, 0x80, 0xBF};
  }
  if (first >= 0xE0 && first <= 0xEF) {
    const auto low = static_cast<unsigned char>(first == 0xE0 ? 0xA0 : 0x80);
    const auto high = static_cast<unsigned char>(first == 0xED ? 0x9F : 0xBF);
    return {3, low, high};
  }
  if (first >= 0xF0 && first <= 0xF4) {
    const auto low = static_cast<unsigned char>(first == 0xF0 ? 0x90 : 0x80);
    const auto high = static_cast<unsigned char>(first == 0xF4 ? 0x8F : 0xBF);
    return {4, low, high};
  }
  return {0, 0, 0};
}

}  // namespace

std::optional<std::size_t> Utf8::findInvalid(std::string_view text) {
  for (std::size_t index = 0; index < text.size();) {
    const Form form = formOf(static_cast<unsigned char>(text[index]));
    if (form.length == 0 || form.length > text.size() - index) {
      return index;
    }
    for (std::size_t offset = 1; offset < form.length; ++offset) {
      const auto byte = static_cast<unsigned char>(text[index + offset]);
      const unsigned char low = offset == 1 ? form.secondLow : 0x80;
      const unsigned char high = offset == 1 ? form.secondHigh : 0xBF;
      if (byte < low || byte > high) {
        return index;
      }
    }
    index += form.length;
  }
  return std::nullopt;
}

std::optional<std::size_t> Utf8::lengthInUtf16(std::string_view text) {
  if (findInvalid(text)) {
    return std::nullopt;
  }
  std::size_t units = 0;
  for (std::size_t index = 0; index < text.size();) {
    const std::size_t length = formOf(static_cast<unsigned char>(text[index])).length;
    units += length == 4 ? 2 : 1;
    index += length;
  }
  return units;
}

}  // namespace orvane::desk
