// The exposed intervals of a display's Dock edge, and the resulting trigger zones.
#include <cmath>
#include <cstddef>
#include <limits>
#include <set>
#include <span>
#include <vector>

#include <gtest/gtest.h>

#include "Orvane/geometry/OrvaneGeometry.hpp"
#include "tests/support/GeometryPrinting.hpp"

namespace orvane {
namespace {

using Frames = std::vector<CGRect>;
using Zones = std::vector<TriggerZone>;
using Intervals = std::vector<EdgeInterval>;
using Indices = std::set<std::size_t>;
using OrvaneGeometry::calculateTriggerZones;
using OrvaneGeometry::exposedIntervals;

constexpr DockPosition bottom = DockPosition::bottom;
constexpr CGRect displayA{{0, 0}, {1920, 1080}};

TEST(OrvaneGeometryTest, TheOtherOfTwoDisplaysSideBySideGetsAZoneAlongItsBottom) {
  const Frames frames{displayA, {{1920, 0}, {1920, 1080}}};
  EXPECT_EQ(calculateTriggerZones(frames, 0, bottom),
            (Zones{{{{1920, 1068}, {1920, 12}}, {0, -12}}}));
}

TEST(OrvaneGeometryTest, AMirrorIsNotANeighbour) {
  // So flat that its upper edge is within the neighbour tolerance of its lower one.
  const CGRect flat{{0, 0}, {100, 1.5}};
  EXPECT_EQ(exposedIntervals(flat, bottom, Frames{flat, flat}), (Intervals{{0, 100}}));
}

TEST(OrvaneGeometryTest, ANeighbourAlongHalfAPointIsIgnored) {
  const CGRect half{{1919.5, 1080}, {800, 600}};
  EXPECT_EQ(exposedIntervals(displayA, bottom, Frames{displayA, half}), (Intervals{{0, 1920}}));
  const CGRect more{{1919.25, 1080}, {800, 600}};
  EXPECT_EQ(exposedIntervals(displayA, bottom, Frames{displayA, more}), (Intervals{{0, 1919.25}}));
}

TEST(OrvaneGeometryTest, TopAndUnknownGiveNoZones) {
  const Frames frames{displayA, {{1920, 0}, {1920, 1080}}};
  for (const DockPosition position : {DockPosition::top, DockPosition::unknown}) {
    EXPECT_EQ(calculateTriggerZones(frames, Indices{0, 1}, position), Zones{});
    EXPECT_EQ(calculateTriggerZones(frames, 0, position), Zones{});
  }
}

TEST(OrvaneGeometryTest, TopAndUnknownHaveTheExposedIntervalsOfTheBottom) {
  const Frames frames{displayA, {{1000, 1080}, {1920, 1080}}};
  const Intervals expected = exposedIntervals(displayA, bottom, frames);
  EXPECT_EQ(exposedIntervals(displayA, DockPosition::top, frames), expected);
  EXPECT_EQ(exposedIntervals(displayA, DockPosition::unknown, frames), expected);
}

TEST(OrvaneGeometryTest, IndicesWithoutADisplayAreIgnored) {
  const Frames frames{displayA, {{1920, 0}, {1920, 1080}}};
  EXPECT_EQ(calculateTriggerZones(frames, std::numeric_limits<std::size_t>::max(), bottom),
            Zones{});
  Frames more = frames;
  more.push_back({{0, 2000}, {100, 100}});
  EXPECT_EQ(calculateTriggerZones(std::span(more).first(2), Indices{1, 2, 77}, bottom),
            calculateTriggerZones(frames, Indices{1}, bottom));
}

TEST(OrvaneGeometryTest, ZonesComeInTheOrderOfTheDisplaysThenAlongTheEdge) {
  // The first display is split by a neighbour below; the second one lies to the left of it.
  const Frames frames{displayA, {{-1000, 0}, {1000, 800}}, {{500, 1080}, {200, 200}}};
  EXPECT_EQ(calculateTriggerZones(frames, Indices{0, 1}, bottom),
            (Zones{{{{0, 1068}, {500, 12}}, {0, -12}},
                   {{{700, 1068}, {1220, 12}}, {0, -12}},
                   {{{-1000, 788}, {1000, 12}}, {0, -12}}}));
}

TEST(OrvaneGeometryTest, AZoneOfADisplayThinnerThanItReachesBeyondIt) {
  const Frames frames{displayA, {{0, 2000}, {100, 5}}};
  EXPECT_EQ(calculateTriggerZones(frames, 0, bottom), (Zones{{{{0, 1993}, {100, 12}}, {0, -12}}}));
}

TEST(OrvaneGeometryTest, FramesThatAreNotNumbersHaveNoExposedInterval) {
  const double nan = std::nan("");
  const Frames frames{displayA, {{nan, nan}, {nan, nan}}, {{0, 1080}, {1920, nan}}};
  EXPECT_EQ(exposedIntervals(displayA, bottom, frames), Intervals{});
  EXPECT_EQ(exposedIntervals(displayA, DockPosition::left, frames), (Intervals{{0, 1080}}));
  EXPECT_TRUE(exposedIntervals(frames[1], DockPosition::right, frames).empty());
}

TEST(OrvaneGeometryTest, ZonesAreEqualWhenAllSixNumbersAre) {
  const TriggerZone zone{{{1, 2}, {3, 4}}, {5, 6}};
  EXPECT_EQ(zone, zone);
  const std::vector<TriggerZone> others{{{{9, 2}, {3, 4}}, {5, 6}}, {{{1, 9}, {3, 4}}, {5, 6}},
                                        {{{1, 2}, {9, 4}}, {5, 6}}, {{{1, 2}, {3, 9}}, {5, 6}},
                                        {{{1, 2}, {3, 4}}, {9, 6}}, {{{1, 2}, {3, 4}}, {5, 9}}};
  for (const TriggerZone& other : others) {
    EXPECT_FALSE(zone == other) << other;
  }
}

}  // namespace
}  // namespace orvane
