// Formats lines of the script language.
#include "desk/explore/Lines.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace orvane::desk::explore {

std::string quoted(std::string_view text) {
  std::string written = "\"";
  for (const char character : text) {
    if (character == '\n') {
      written += "\\n";
    } else if (character == '\t') {
      written += "\\t";
    } else {
      written += character == '"' || character == '\\' ? "\\" : "";
      written += character;
    }
  }
  return written + "\"";
}

std::string decimal(std::int64_t thousandths) {
  const std::int64_t magnitude = std::abs(thousandths);
  std::string fraction = std::to_string(magnitude % 1000);
  fraction.insert(0, 3 - fraction.size(), '0');
  fraction.erase(fraction.find_last_not_of('0') + 1);
  std::string text = thousandths < 0 ? "-" : "";
  text += std::to_string(magnitude / 1000);
  return fraction.empty() ? text : text + "." + fraction;
}

std::string decimal(double number) {
  return decimal(static_cast<std::int64_t>(std::llround(number * 1000)));
}

std::string controlLine(std::string_view command, const std::string& surface,
                        const std::vector<SurfaceControl>& controls, std::size_t index) {
  const std::string& label = controls[index].node.label;
  const auto isAlike = [&label](const SurfaceControl& control) {
    return control.node.isEnabled && control.node.label == label;
  };
  const auto before = std::count_if(controls.begin(),
                                    controls.begin() + static_cast<std::ptrdiff_t>(index), isAlike);
  std::string line = std::string(command) + " " + quoted(label) + " in " + surface;
  return before > 0 ? line + " nth " + std::to_string(before + 1) : line;
}

}  // namespace orvane::desk::explore
