// The exposed intervals of a display's Dock edge, and the resulting trigger zones.
#include <cmath>
#include <cstddef>
#include <limits>
#include <set>
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

constexpr CGRect displayA{{0, 0}, {1920, 1080}};

TEST(OrvaneGeometryTest, TheConstantsAreTwelveTwoAndHalfAPoint) {
  EXPECT_EQ(OrvaneGeometry::zoneThickness, 12.0);
  EXPECT_EQ(OrvaneGeometry::neighbourTolerance, 2.0);
  EXPECT_EQ(EdgeInterval::minimumLength, 0.5);
}

TEST(OrvaneGeometryTest, TheDockPositionsKeepTheirOrder) {
  EXPECT_EQ(static_cast<int>(DockPosition::top), 0);
  EXPECT_EQ(static_cast<int>(DockPosition::bottom), 1);
  EXPECT_EQ(static_cast<int>(DockPosition::left), 2);
  EXPECT_EQ(static_cast<int>(DockPosition::right), 3);
  EXPECT_EQ(static_cast<int>(DockPosition::unknown), 4);
}

TEST(OrvaneGeometryTest, SideBySideTheOtherDisplayGetsOneZoneAlongItsBottom) {
  const Frames frames{displayA, {{1920, 0}, {1920, 1080}}};
  EXPECT_EQ(calculateTriggerZones(frames, 0, DockPosition::bottom),
            (Zones{{{{1920, 1068}, {1920, 12}}, {0, -12}}}));
}

TEST(OrvaneGeometryTest, ADisplayWhoseWholeEdgeIsSharedGetsNoZone) {
  const Frames frames{displayA, {{0, 1080}, {1920, 1080}}};
  EXPECT_EQ(calculateTriggerZones(frames, 1, DockPosition::bottom), Zones{});
}

TEST(OrvaneGeometryTest, OnlyTheExposedPartOfAnEdgeGetsAZone) {
  const Frames frames{displayA, {{1000, 1080}, {1920, 1080}}};
  EXPECT_EQ(calculateTriggerZones(frames, 1, DockPosition::bottom),
            (Zones{{{{0, 1068}, {1000, 12}}, {0, -12}}}));
}

TEST(OrvaneGeometryTest, ANeighbourOnePointAndAHalfAwayTouches) {
  for (const double offset : {1.5, -1.5, 2.0, -2.0}) {
    const Frames frames{displayA, {{0, 1080 + offset}, {1920, 1080}}};
    EXPECT_EQ(exposedIntervals(displayA, DockPosition::bottom, frames), Intervals{}) << offset;
  }
}

TEST(OrvaneGeometryTest, ANeighbourTwoPointsAndAHalfAwayDoesNotTouch) {
  for (const double offset : {2.5, -2.5, 2.001, -2.001}) {
    const Frames frames{displayA, {{0, 1080 + offset}, {1920, 1080}}};
    EXPECT_EQ(exposedIntervals(displayA, DockPosition::bottom, frames), (Intervals{{0, 1920}}))
        << offset;
  }
}

TEST(OrvaneGeometryTest, ANeighbourTouchesAtEveryEdge) {
  const Frames leftAndRight{displayA, {{-801.5, 0}, {800, 500}}, {{1921.5, 500}, {800, 580}}};
  EXPECT_EQ(exposedIntervals(displayA, DockPosition::left, leftAndRight), (Intervals{{500, 1080}}));
  EXPECT_EQ(exposedIntervals(displayA, DockPosition::right, leftAndRight), (Intervals{{0, 500}}));
}

TEST(OrvaneGeometryTest, AnExposedPieceOfHalfAPointIsDroppedAndOneOfSixTenthsIsKept) {
  const Frames half{displayA, {{0.5, 1080}, {1919.5, 1080}}};
  EXPECT_EQ(calculateTriggerZones(half, Indices{0}, DockPosition::bottom), Zones{});
  const Frames sixTenths{displayA, {{0.6, 1080}, {1919.4, 1080}}};
  EXPECT_EQ(calculateTriggerZones(sixTenths, Indices{0}, DockPosition::bottom),
            (Zones{{{{0, 1068}, {0.6, 12}}, {0, -12}}}));
}

TEST(OrvaneGeometryTest, AGapBetweenNeighboursBecomesAZoneWhenItIsLongerThanHalfAPoint) {
  const CGRect frame{{0, 0}, {200, 100}};
  const Frames close{frame, {{0, 100}, {100, 100}}, {{100.4, 100}, {99.6, 100}}};
  EXPECT_EQ(exposedIntervals(frame, DockPosition::bottom, close), Intervals{});
  const Frames apart{frame, {{0, 100}, {100, 100}}, {{100.6, 100}, {99.4, 100}}};
  EXPECT_EQ(exposedIntervals(frame, DockPosition::bottom, apart), (Intervals{{100, 100.6}}));
}

TEST(OrvaneGeometryTest, ASharedStretchOfAtMostHalfAPointDoesNotCount) {
  const CGRect frame{{0, 0}, {200, 100}};
  const Frames corner{frame, {{-99.5, 100}, {100, 100}}};
  EXPECT_EQ(exposedIntervals(frame, DockPosition::bottom, corner), (Intervals{{0, 200}}));
  const Frames more{frame, {{-99.25, 100}, {100, 100}}};
  EXPECT_EQ(exposedIntervals(frame, DockPosition::bottom, more), (Intervals{{0.75, 200}}));
}

TEST(OrvaneGeometryTest, AMirrorIsNotANeighbour) {
  // So flat that its upper edge is within the neighbour tolerance of its lower one.
  const CGRect flat{{0, 0}, {100, 1.5}};
  EXPECT_EQ(exposedIntervals(flat, DockPosition::bottom, Frames{flat, flat}),
            (Intervals{{0, 100}}));
}

TEST(OrvaneGeometryTest, MirroredDisplaysGetEachTheirZone) {
  const Zones zones =
      calculateTriggerZones(Frames{displayA, displayA}, Indices{0, 1}, DockPosition::bottom);
  ASSERT_EQ(zones.size(), 2U);
  EXPECT_EQ(zones[0], zones[1]);
}

TEST(OrvaneGeometryTest, WithTheDockAtTheLeftZonesPushRight) {
  const Frames frames{displayA, {{1920, 0}, {1920, 1080}}, {{100, -900}, {1000, 900}}};
  EXPECT_EQ(calculateTriggerZones(frames, 1, DockPosition::left),
            (Zones{{{{0, 0}, {12, 1080}}, {12, 0}}, {{{100, -900}, {12, 900}}, {12, 0}}}));
}

TEST(OrvaneGeometryTest, WithTheDockAtTheRightZonesPushLeft) {
  const Frames frames{displayA, {{1920, 200}, {1920, 500}}};
  EXPECT_EQ(calculateTriggerZones(frames, 1, DockPosition::right),
            (Zones{{{{1908, 0}, {12, 200}}, {-12, 0}}, {{{1908, 700}, {12, 380}}, {-12, 0}}}));
}

TEST(OrvaneGeometryTest, TopAndUnknownGiveNoZones) {
  const Frames frames{displayA, {{1920, 0}, {1920, 1080}}};
  for (const DockPosition position : {DockPosition::top, DockPosition::unknown}) {
    EXPECT_EQ(calculateTriggerZones(frames, Indices{0, 1}, position), Zones{});
    EXPECT_EQ(calculateTriggerZones(frames, 0, position), Zones{});
  }
}

TEST(OrvaneGeometryTest, TopAndUnknownExposeWhatTheBottomExposes) {
  const Frames frames{displayA, {{1000, 1080}, {1920, 1080}}};
  const Intervals bottom = exposedIntervals(displayA, DockPosition::bottom, frames);
  EXPECT_EQ(exposedIntervals(displayA, DockPosition::top, frames), bottom);
  EXPECT_EQ(exposedIntervals(displayA, DockPosition::unknown, frames), bottom);
}

TEST(OrvaneGeometryTest, ASingleDisplayIsGuardedOnlyWhenItIsBlocked) {
  const Frames single{displayA};
  EXPECT_EQ(calculateTriggerZones(single, 0, DockPosition::bottom), Zones{});
  EXPECT_EQ(calculateTriggerZones(single, Indices{0}, DockPosition::bottom),
            (Zones{{{{0, 1068}, {1920, 12}}, {0, -12}}}));
}

TEST(OrvaneGeometryTest, AnIndexOutOfRangeLocksNothing) {
  const Frames frames{displayA, {{1920, 0}, {1920, 1080}}};
  EXPECT_EQ(calculateTriggerZones(frames, 2, DockPosition::bottom), Zones{});
  EXPECT_EQ(
      calculateTriggerZones(frames, std::numeric_limits<std::size_t>::max(), DockPosition::bottom),
      Zones{});
}

TEST(OrvaneGeometryTest, BlockedIndicesWithoutAFrameAreIgnored) {
  const Frames frames{displayA, {{1920, 0}, {1920, 1080}}};
  EXPECT_EQ(calculateTriggerZones(frames, Indices{1, 2, 77}, DockPosition::bottom),
            calculateTriggerZones(frames, Indices{1}, DockPosition::bottom));
}

TEST(OrvaneGeometryTest, NoFramesGiveNoZones) {
  EXPECT_EQ(calculateTriggerZones(Frames{}, Indices{0}, DockPosition::bottom), Zones{});
  EXPECT_EQ(calculateTriggerZones(Frames{}, 0, DockPosition::bottom), Zones{});
}

TEST(OrvaneGeometryTest, ZonesComeInTheOrderOfTheDisplaysThenAlongTheEdge) {
  // The first display is split by a neighbour below; the second one lies to the left of it.
  const Frames frames{displayA, {{-1000, 0}, {1000, 800}}, {{500, 1080}, {200, 200}}};
  EXPECT_EQ(calculateTriggerZones(frames, Indices{0, 1}, DockPosition::bottom),
            (Zones{{{{0, 1068}, {500, 12}}, {0, -12}},
                   {{{700, 1068}, {1220, 12}}, {0, -12}},
                   {{{-1000, 788}, {1000, 12}}, {0, -12}}}));
}

TEST(OrvaneGeometryTest, AZoneOfADisplayThinnerThanItReachesBeyondIt) {
  const Frames frames{displayA, {{0, 2000}, {100, 5}}};
  EXPECT_EQ(calculateTriggerZones(frames, 0, DockPosition::bottom),
            (Zones{{{{0, 1993}, {100, 12}}, {0, -12}}}));
}

TEST(OrvaneGeometryTest, FramesThatAreNoNumbersDoNoHarm) {
  const double nan = std::nan("");
  const Frames frames{displayA, {{nan, nan}, {nan, nan}}, {{0, 1080}, {1920, nan}}};
  EXPECT_EQ(exposedIntervals(displayA, DockPosition::bottom, frames), Intervals{});
  EXPECT_EQ(exposedIntervals(displayA, DockPosition::left, frames), (Intervals{{0, 1080}}));
  EXPECT_TRUE(exposedIntervals(frames[1], DockPosition::right, frames).empty());
}

TEST(OrvaneGeometryTest, ZonesAreEqualWhenAllSixNumbersAre) {
  const TriggerZone zone{{{1, 2}, {3, 4}}, {5, 6}};
  EXPECT_EQ(zone, zone);
  TriggerZone other = zone;
  other.rect.origin.x = 9;
  EXPECT_FALSE(zone == other);
  other = zone;
  other.rect.origin.y = 9;
  EXPECT_FALSE(zone == other);
  other = zone;
  other.rect.size.width = 9;
  EXPECT_FALSE(zone == other);
  other = zone;
  other.rect.size.height = 9;
  EXPECT_FALSE(zone == other);
  other = zone;
  other.nudgeVector.dx = 9;
  EXPECT_FALSE(zone == other);
  other = zone;
  other.nudgeVector.dy = 9;
  EXPECT_FALSE(zone == other);
}

}  // namespace
}  // namespace orvane
