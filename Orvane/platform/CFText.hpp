// Conversion from Core Foundation strings to std::string, as UTF-8.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "Orvane/base/CFRef.hpp"
#include "Orvane/platform/Quartz.hpp"

namespace orvane {

/// The text of `value`; none when it is null or not a string.
inline std::optional<std::string> textOf(CFTypeRef value) {
  if (value == nullptr || CFGetTypeID(value) != CFStringGetTypeID()) {
    return std::nullopt;
  }
  const auto string = static_cast<CFStringRef>(value);
  const CFIndex capacity =
      CFStringGetMaximumSizeForEncoding(CFStringGetLength(string), kCFStringEncodingUTF8) + 1;
  std::string text(static_cast<std::size_t>(capacity), '\0');
  if (!CFStringGetCString(string, text.data(), capacity, kCFStringEncodingUTF8)) {
    return std::nullopt;
  }
  text.resize(text.find('\0'));
  return text;
}

}  // namespace orvane
