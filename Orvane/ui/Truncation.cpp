// Each end of a line is found by halving, because measuring is dear.
#include "Orvane/ui/Truncation.hpp"

#include <algorithm>

namespace orvane::ui {

namespace {

constexpr const char* ellipsis = "…";
// Of the room beside the ellipsis, for the end of a line that is cut in the middle.
constexpr double endShare = 1.0 / 2;
constexpr double largestEndShare = 2.0 / 3;

std::string withoutTrailingBlanks(std::string text) {
  text.erase(text.find_last_not_of(' ') + 1);
  return text;
}

// Where the end begins that is kept of a line cut in the middle.
std::size_t startOfEnd(const std::string& line, const std::vector<std::size_t>& places, double room,
                       const std::function<double(const std::string&)>& widthOf) {
  const auto fits = [&](std::size_t start, double share) {
    return widthOf(line.substr(start)) <= room * share;
  };
  std::size_t start = *std::ranges::partition_point(
      places, [&](std::size_t place) { return place < line.size() && !fits(place, endShare); });
  start = std::min(line.find_first_not_of(' ', start), line.size());
  const std::size_t blank = start == 0 ? std::string::npos : line.rfind(' ', start - 1);
  const std::size_t word = blank == std::string::npos ? 0 : blank + 1;
  return fits(word, largestEndShare) ? word : start;
}

}  // namespace

std::string truncatedLine(const std::string& line, const std::vector<std::size_t>& places,
                          TruncationMode mode, double maximumWidth,
                          const std::function<double(const std::string&)>& widthOf) {
  std::string end = ellipsis;
  // A line that is cut because another one follows has only an end to lose.
  if (mode == TruncationMode::middle && widthOf(line) > maximumWidth) {
    end += line.substr(startOfEnd(line, places, maximumWidth - widthOf(ellipsis), widthOf));
  }
  const auto lineTo = [&](std::size_t place) {
    return withoutTrailingBlanks(line.substr(0, place)) + end;
  };
  const auto tooMuch = std::ranges::partition_point(
      places, [&](std::size_t place) { return widthOf(lineTo(place)) <= maximumWidth; });
  return lineTo(tooMuch == places.begin() ? 0 : *std::prev(tooMuch));
}

}  // namespace orvane::ui
