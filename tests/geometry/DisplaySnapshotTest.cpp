// The application's snapshot of each attached display.
#include <set>
#include <string>
#include <unordered_set>
#include <vector>

#include <gtest/gtest.h>

#include "Orvane/geometry/DisplaySnapshot.hpp"
#include "tests/support/MachineFixture.hpp"
#include "tests/support/TestDisplays.hpp"

namespace orvane {
namespace {

using desk::attach;

class DisplaySnapshotTest : public desk::MachineFixture {};

TEST_F(DisplaySnapshotTest, ASnapshotHasEveryField) {
  attach(machine, desk::laptop());
  attach(machine, desk::displayOf(7, " Studio ", {{1920, 100}, {2560, 1440}}), true);
  const std::vector<DisplaySnapshot> displays = DisplaySnapshot::ofAllScreens();
  ASSERT_EQ(displays.size(), 2U);
  EXPECT_EQ(displays[0].id, desk::uuidNamed('A'));
  EXPECT_EQ(displays[0].name, "Display");
  EXPECT_TRUE(displays[0].isBuiltIn);
  EXPECT_FALSE(displays[0].isMain);
  const std::string legacy =
      "Optional(7)-2560.0-1440.0-Optional(8)-Optional(\"NSCalibratedRGBColorSpace\")";
  EXPECT_EQ(displays[1].id, legacy);
  EXPECT_EQ(displays[1].matchingIdentifiers, (std::set<std::string>{legacy, "7"}));
  EXPECT_EQ(displays[1].name, "Studio");
  EXPECT_TRUE(CGRectEqualToRect(displays[1].frame, {{1920, 100}, {2560, 1440}}));
  EXPECT_TRUE(CGRectEqualToRect(displays[1].cgFrame, {{1920, -460}, {2560, 1440}}));
  EXPECT_FALSE(displays[1].isBuiltIn);
  EXPECT_TRUE(displays[1].isMain);
}

TEST_F(DisplaySnapshotTest, AScreenWithoutANumberHasNoRoles) {
  desk::Display display = desk::laptop();
  display.hasNumberInDescription = false;
  display.name = "";
  attach(machine, display, true);
  const DisplaySnapshot snapshot = DisplaySnapshot::ofAllScreens().at(0);
  EXPECT_TRUE(snapshot.id.starts_with("nil-"));
  EXPECT_FALSE(snapshot.isMain);
  EXPECT_FALSE(snapshot.isBuiltIn);
  EXPECT_EQ(snapshot.name, "Unknown Display");
}

TEST_F(DisplaySnapshotTest, SnapshotsAreEqualOnlyWhenEveryFieldIs) {
  const DisplaySnapshot snapshot{.id = "id",
                                 .matchingIdentifiers = {"id", "1"},
                                 .name = "name",
                                 .frame = {{1, 2}, {3, 4}},
                                 .cgFrame = {{5, 6}, {7, 8}},
                                 .isMain = true,
                                 .isBuiltIn = true};
  EXPECT_TRUE(snapshot == DisplaySnapshot(snapshot));
  const auto differsBy = [&](auto change) {
    DisplaySnapshot other = snapshot;
    change(other);
    return !(other == snapshot);
  };
  EXPECT_TRUE(differsBy([](DisplaySnapshot& other) { other.id = "other"; }));
  EXPECT_TRUE(differsBy([](DisplaySnapshot& other) { other.matchingIdentifiers.insert("2"); }));
  EXPECT_TRUE(differsBy([](DisplaySnapshot& other) { other.name = "other"; }));
  EXPECT_TRUE(differsBy([](DisplaySnapshot& other) { other.frame.size.height = 9; }));
  EXPECT_TRUE(differsBy([](DisplaySnapshot& other) { other.cgFrame.origin.x = 9; }));
  EXPECT_TRUE(differsBy([](DisplaySnapshot& other) { other.isMain = false; }));
  EXPECT_TRUE(differsBy([](DisplaySnapshot& other) { other.isBuiltIn = false; }));
}

TEST_F(DisplaySnapshotTest, SnapshotsCanBeHashed) {
  attach(machine, desk::laptop());
  attach(machine, desk::monitorAtTheRight());
  const std::vector<DisplaySnapshot> displays = DisplaySnapshot::ofAllScreens();
  std::unordered_set<DisplaySnapshot> seen(displays.begin(), displays.end());
  EXPECT_EQ(seen.size(), 2U);
  EXPECT_TRUE(seen.contains(displays[1]));
}

}  // namespace
}  // namespace orvane
