// GLib validates the text.
#include "desk/quartz/Utf8.hpp"

#include <glib.h>

namespace orvane::desk {

std::optional<std::size_t> Utf8::findInvalid(std::string_view text) {
  const char* place = text.data();
  const char* const end = place + text.size();
  while (g_utf8_validate(place, end - place, &place) == FALSE) {
    // GLib refuses a zero byte, which is a valid character.
    if (*place != '\0') {
      return static_cast<std::size_t>(place - text.data());
    }
    ++place;
  }
  return std::nullopt;
}

std::size_t Utf8::lengthInUtf16(std::string_view text) {
  std::size_t units = 0;
  for (const char character : text) {
    const auto byte = static_cast<unsigned char>(character);
    const bool isFirst = (byte & 0xC0U) != 0x80;
    // A form of four bytes has two units.
    units += (isFirst ? 1U : 0U) + (byte >= 0xF0 ? 1U : 0U);
  }
  return units;
}

}  // namespace orvane::desk
