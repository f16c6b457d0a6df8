// The commands that stand for a user.
#include "desk/explore/Step.hpp"

#include <algorithm>
#include <array>

namespace orvane::desk::explore {

std::string_view firstWord(std::string_view line) {
  return line.substr(0, line.find(' '));
}

bool Step::isUserAction() const {
  constexpr std::array<std::string_view, 8> commands{"press", "pick", "key",  "click",
                                                     "do",    "drop", "menu", "close"};
  return std::ranges::find(commands, firstWord(line)) != commands.end();
}

}  // namespace orvane::desk::explore
