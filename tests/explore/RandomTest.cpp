// The numbers are those of the published generator, so a seed means the same everywhere.
#include <gtest/gtest.h>

#include "desk/explore/Random.hpp"

namespace orvane::desk::explore {
namespace {

TEST(Random, MatchesThePublishedGenerator) {
  Random random{1234567};
  EXPECT_EQ(random.next(), 6457827717110365317ULL);
  EXPECT_EQ(random.next(), 3203168211198807973ULL);
  EXPECT_EQ(random.next(), 9817491932198370423ULL);
}

TEST(Random, StaysWithinItsBounds) {
  Random random{1};
  bool hasMinimum = false;
  bool hasMaximum = false;
  for (int draw = 0; draw < 200; ++draw) {
    const std::int64_t number = random.between(-2, 3);
    ASSERT_GE(number, -2);
    ASSERT_LE(number, 3);
    hasMinimum = hasMinimum || number == -2;
    hasMaximum = hasMaximum || number == 3;
  }
  EXPECT_TRUE(hasMinimum);
  EXPECT_TRUE(hasMaximum);
}

}  // namespace
}  // namespace orvane::desk::explore
