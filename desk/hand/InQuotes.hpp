// Quoted text in messages.
#pragma once

#include <string>
#include <string_view>

namespace orvane::desk {

[[nodiscard]] inline std::string inQuotes(std::string_view text) {
  std::string quoted = "\"";
  quoted += text;
  quoted += '"';
  return quoted;
}

}  // namespace orvane::desk
