// Collecting damaged areas.
#include <gtest/gtest.h>

#include "Orvane/ui/host/Damage.hpp"

namespace orvane::ui {
namespace {

TEST(DamageTest, OverlappingAreasAreJoinedTransitively) {
  Damage damage;
  damage.add({0, 0, 10, 10});
  damage.add({30, 0, 10, 10});
  damage.add({100, 0, 10, 10});
  // Overlaps only the first; the two together overlap the second.
  damage.add({5, 5, 30, 30});
  EXPECT_EQ(damage.take(), (std::vector<Rect>{{100, 0, 10, 10}, {0, 0, 40, 35}}));
}

TEST(DamageTest, IsTakenOnceAndHasNoEmptyAreas) {
  Damage damage;
  damage.add({5, 5, 0, 10});
  EXPECT_TRUE(damage.take().empty());
  damage.add({5, 5, 1, 1});
  EXPECT_EQ(damage.take().size(), 1U);
  EXPECT_TRUE(damage.take().empty());
}

}  // namespace
}  // namespace orvane::ui
