// The lots are those of the published generator, so that a seed means the same everywhere.
#include <gtest/gtest.h>

#include "desk/explore/Lots.hpp"

namespace orvane::desk::explore {
namespace {

TEST(Lots, AreThoseOfThePublishedGenerator) {
  Lots lots(1234567);
  EXPECT_EQ(lots.next(), 6457827717110365317ULL);
  EXPECT_EQ(lots.next(), 3203168211198807973ULL);
  EXPECT_EQ(lots.next(), 9817491932198370423ULL);
}

TEST(Lots, StayWithinTheirBounds) {
  Lots lots(1);
  bool hasLowest = false;
  bool hasHighest = false;
  for (int draw = 0; draw < 200; ++draw) {
    const std::int64_t number = lots.between(-2, 3);
    ASSERT_GE(number, -2);
    ASSERT_LE(number, 3);
    hasLowest = hasLowest || number == -2;
    hasHighest = hasHighest || number == 3;
  }
  EXPECT_TRUE(hasLowest);
  EXPECT_TRUE(hasHighest);
}

}  // namespace
}  // namespace orvane::desk::explore
