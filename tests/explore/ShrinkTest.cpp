// The lines that remain when all others are left out.
#include <algorithm>

#include <gtest/gtest.h>

#include "desk/explore/Shrink.hpp"

namespace orvane::desk::explore {
namespace {

bool has(const Lines& lines, const std::string& line) {
  return std::ranges::find(lines, line) != lines.end();
}

TEST(Shrink, KeepsTheNecessaryLinesInOrder) {
  Lines lines;
  for (int number = 0; number < 100; ++number) {
    lines.push_back(std::to_string(number));
  }
  const auto fails = [](const Lines& some) {
    return has(some, "3") && has(some, "50") && has(some, "99");
  };
  EXPECT_EQ(shrunk(lines, fails), (Lines{"3", "50", "99"}));
}

TEST(Shrink, KeepsNoLineIfNoneIsNecessary) {
  EXPECT_EQ(shrunk({"a", "b", "c"}, [](const Lines&) { return true; }), Lines{});
}

}  // namespace
}  // namespace orvane::desk::explore
