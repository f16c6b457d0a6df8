// The oracle, on arrangements that were worked out by hand.
#include <vector>

#include <gtest/gtest.h>

#include "desk/explore/DisplayConfiguration.hpp"

namespace orvane::desk::explore {
namespace {

DisplayConfiguration sideBySide() {
  return {{{0, 0, 1440, 900, 1, {"LEFT", "1"}}, {1440, 0, 1920, 1080, 2, {"RIGHT", "2"}}},
          DockEdge::bottom};
}

const TriggerZone zoneOfTheRight{{{1440, 1068}, {1920, 12}}, {0, -12}};

TEST(DisplayConfiguration, MovesLocationsInTheStripsOfOtherDisplaysThanTheTarget) {
  const DisplayConfiguration configuration = sideBySide();
  const GuardGoal goal{.prevents = false, .target = "LEFT"};
  EXPECT_EQ(configuration.filtered({2000, 1068}, goal).y, 1056);
  EXPECT_EQ(configuration.filtered({2000, 1067.9}, goal).y, 1067.9);
  EXPECT_EQ(configuration.filtered({700, 899}, goal).y, 899);
  EXPECT_EQ(configuration.filtered({700, 899}, {.prevents = true, .target = ""}).y, 887);
}

TEST(DisplayConfiguration, LetsThePointerThroughToANeighbourBehindTheEdge) {
  DisplayConfiguration configuration = sideBySide();
  configuration.screens.push_back({1500, 1082, 800, 600, 3, {"BELOW"}});
  const GuardGoal goal{.prevents = false, .target = "LEFT"};
  EXPECT_EQ(configuration.filtered({1500, 1079}, goal).y, 1079);
  EXPECT_EQ(configuration.filtered({1499, 1079}, goal).y, 1067);
  EXPECT_EQ(configuration.filtered({2300, 1079}, goal).y, 1067);
  configuration.screens.back().y = 1083;
  EXPECT_EQ(configuration.filtered({1500, 1079}, goal).y, 1067);
}

TEST(DisplayConfiguration, DetectsMissingShortThinAndSurplusZones) {
  const DisplayConfiguration configuration = sideBySide();
  const GuardGoal goal{.prevents = false, .target = "LEFT"};
  const auto isWrong = [&](const std::vector<TriggerZone>& zones) {
    return configuration.zoneProblem(zones, goal).has_value();
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

TEST(DisplayConfiguration, ReturnsAPointOnTheEdgeOfEachForbiddenDisplay) {
  const DisplayConfiguration configuration = sideBySide();
  const auto places = configuration.forbiddenEdgePoints({.prevents = true, .target = ""});
  ASSERT_EQ(places.size(), 2U);
  EXPECT_EQ(places[0].x, 720);
  EXPECT_EQ(places[1].y, 1079);
}

}  // namespace
}  // namespace orvane::desk::explore
