// Compares the step's operation with the lines of both languages.
#include "desk/explore/Presses.hpp"

#include <algorithm>
#include <array>
#include <string>

#include "desk/explore/Lines.hpp"

namespace orvane::desk::explore {

namespace {

constexpr std::array languages{Language::english, Language::chinese};

}  // namespace

bool presses(const Step& step, const char* Labels::*label, std::string_view surface) {
  return std::ranges::any_of(languages, [&](Language language) {
    return step.operation ==
           "press " + quoted(labelsIn(language).*label) + " in " + std::string(surface);
  });
}

bool picks(const Step& step, const char* Labels::*label, std::string_view item) {
  return std::ranges::any_of(languages, [&](Language language) {
    return step.operation ==
           "pick " + quoted(labelsIn(language).*label) + " " + quoted(item) + " in settings";
  });
}

}  // namespace orvane::desk::explore
