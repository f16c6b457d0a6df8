// Finds both ends of a line by bisection, because measuring is slow.
#include "Orvane/ui/draw/Truncation.hpp"

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

namespace orvane::ui {

namespace {

constexpr const char* ellipsis = "…";
// Of the room beside the ellipsis, for the end of a line that is truncated in the middle.
constexpr double endFraction = 1.0 / 2;
constexpr double maximumEndFraction = 2.0 / 3;

struct Brackets {
  std::size_t begin;
  std::size_t end;
};

// The brackets that enclose the place; none outside of brackets.
std::optional<Brackets> bracketsAround(const std::string& line, std::size_t place) {
  std::optional<Brackets> found;
  for (const auto& [opening, closing] : {std::pair{"(", ")"}, std::pair{"（", "）"}}) {
    const std::size_t begin = place == 0 ? std::string::npos : line.rfind(opening, place - 1);
    const std::size_t end = begin == std::string::npos ? begin : line.find(closing, begin);
    if (end != std::string::npos && end >= place) {
      found = Brackets{begin, end + std::string_view(closing).size()};
    }
  }
  return found;
}

// The start of the end that a line truncated in the middle keeps.
std::size_t startOfEnd(const std::string& line, const std::vector<std::size_t>& places, double room,
                       const std::function<double(const std::string&)>& widthOf) {
  const auto fits = [&](std::size_t start, double fraction) {
    return widthOf(line.substr(start)) <= room * fraction;
  };
  std::size_t start = *std::ranges::partition_point(
      places, [&](std::size_t place) { return place < line.size() && !fits(place, endFraction); });
  start = std::min(line.find_first_not_of(' ', start), line.size());
  const std::size_t blank = start == 0 ? std::string::npos : line.rfind(' ', start - 1);
  // The line's beginning if there is no blank, since npos + 1 is 0.
  const std::size_t word = blank + 1;
  if (fits(word, maximumEndFraction)) {
    return word;
  }
  // Not within brackets.
  const std::optional<Brackets> brackets = bracketsAround(line, start);
  if (!brackets) {
    return start;
  }
  return fits(brackets->begin, maximumEndFraction) ? brackets->begin : brackets->end;
}

}  // namespace

std::string truncatedLine(const std::string& line, const std::vector<std::size_t>& places,
                          TruncationMode mode, double maximumWidth,
                          const std::function<double(const std::string&)>& widthOf) {
  std::string end = ellipsis;
  // A line that fits is truncated because another one follows, so only its end is replaced.
  if (mode == TruncationMode::middle && widthOf(line) > maximumWidth) {
    end += line.substr(startOfEnd(line, places, maximumWidth - widthOf(ellipsis), widthOf));
  }
  const auto lineTo = [&](std::size_t place) {
    return withoutTrailingBlanks(line.substr(0, place)) + end;
  };
  const auto tooLong = std::ranges::partition_point(
      places, [&](std::size_t place) { return widthOf(lineTo(place)) <= maximumWidth; });
  return lineTo(tooLong == places.begin() ? 0 : *std::prev(tooLong));
}

std::string withoutTrailingBlanks(std::string text) {
  text.erase(text.find_last_not_of(' ') + 1);
  return text;
}

}  // namespace orvane::ui
