// Delta debugging: leaves out ever smaller runs of lines.
#include "desk/explore/Shrink.hpp"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace orvane::desk::explore {

namespace {

Lines without(const Lines& lines, std::size_t begin, std::size_t length) {
  Lines rest(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(begin));
  const std::size_t end = std::min(begin + length, lines.size());
  rest.insert(rest.end(), lines.begin() + static_cast<std::ptrdiff_t>(end), lines.end());
  return rest;
}

}  // namespace

Lines shrunk(Lines lines, const std::function<bool(const Lines&)>& stillFails) {
  std::size_t length = std::max<std::size_t>(lines.size() / 2, 1);
  while (!lines.empty()) {
    bool hasShrunk = false;
    for (std::size_t begin = 0; begin < lines.size();) {
      Lines rest = without(lines, begin, length);
      if (stillFails(rest)) {
        lines = std::move(rest);
        hasShrunk = true;
      } else {
        begin += length;
      }
    }
    if (length == 1 && !hasShrunk) {
      break;
    }
    length = std::max<std::size_t>(length / 2, 1);
  }
  return lines;
}

}  // namespace orvane::desk::explore
