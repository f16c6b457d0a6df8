// What is forbidden, place by place, in arrangements that are worked out by hand.
#include <vector>

#include <gtest/gtest.h>

#include "desk/explore/Situation.hpp"

namespace orvane::desk::explore {
namespace {

Situation sideBySide() {
  return {{{0, 0, 1440, 900, 1, {"LEFT", "1"}}, {1440, 0, 1920, 1080, 2, {"RIGHT", "2"}}},
          DockEdge::bottom};
}

const TriggerZone zoneOfTheRight{{{1440, 1068}, {1920, 12}}, {0, -12}};

TEST(Situation, MovesBackWhatEndsInTheStripOfAnotherDisplayThanTheTarget) {
  const Situation situation = sideBySide();
  const Wish wish{.prevents = false, .target = "LEFT"};
  EXPECT_EQ(situation.guarded({2000, 1068}, wish).y, 1056);
  EXPECT_EQ(situation.guarded({2000, 1067.9}, wish).y, 1067.9);
  EXPECT_EQ(situation.guarded({700, 899}, wish).y, 899);
  EXPECT_EQ(situation.guarded({700, 899}, {.prevents = true, .target = ""}).y, 887);
}

TEST(Situation, LetsThePointerThroughToANeighbourBehindTheEdge) {
  Situation situation = sideBySide();
  situation.screens.push_back({1500, 1082, 800, 600, 3, {"BELOW"}});
  const Wish wish{.prevents = false, .target = "LEFT"};
  EXPECT_EQ(situation.guarded({1500, 1079}, wish).y, 1079);
  EXPECT_EQ(situation.guarded({1499, 1079}, wish).y, 1067);
  EXPECT_EQ(situation.guarded({2300, 1079}, wish).y, 1067);
  situation.screens.back().y = 1083;
  EXPECT_EQ(situation.guarded({1500, 1079}, wish).y, 1067);
}

TEST(Situation, SeesZonesThatAreMissingTooShortTooThinOrTooMany) {
  const Situation situation = sideBySide();
  const Wish wish{.prevents = false, .target = "LEFT"};
  const auto isWrong = [&](const std::vector<TriggerZone>& zones) {
    return situation.complaint(zones, wish).has_value();
  };
  EXPECT_FALSE(isWrong({zoneOfTheRight}));
  EXPECT_TRUE(isWrong({}));
  TriggerZone shorter = zoneOfTheRight;
  shorter.rect.size.width -= 1;
  EXPECT_TRUE(isWrong({shorter}));
  TriggerZone thinner = zoneOfTheRight;
  thinner.rect.origin.y += 1;
  thinner.rect.size.height -= 1;
  EXPECT_TRUE(isWrong({thinner}));
  TriggerZone other = zoneOfTheRight;
  other.nudgeVector.dy = 12;
  EXPECT_TRUE(isWrong({other}));
  EXPECT_TRUE(isWrong({zoneOfTheRight, {{{0, 888}, {1440, 12}}, {0, -12}}}));
}

TEST(Situation, NamesAPlaceToPressAgainstForEachForbiddenDisplay) {
  const Situation situation = sideBySide();
  const auto places = situation.forbiddenPlaces({.prevents = true, .target = ""});
  ASSERT_EQ(places.size(), 2U);
  EXPECT_EQ(places[0].x, 720);
  EXPECT_EQ(places[1].y, 1079);
}

}  // namespace
}  // namespace orvane::desk::explore
