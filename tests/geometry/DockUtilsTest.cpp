// Reading the Dock's edge from its preferences.
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "Orvane/geometry/DockUtils.hpp"
#include "Orvane/platform/CFText.hpp"
#include "tests/support/MachineFixture.hpp"
#include "tests/support/TestDisplays.hpp"

namespace orvane {
namespace {

using desk::Preferences;
using desk::setDockOrientation;

class DockUtilsTest : public desk::MachineFixture {
 protected:
  void set(Preferences::User user, Preferences::Host host, desk::PropertyValue value) {
    machine.preferences.set({.application = "com.apple.dock", .user = user, .host = host},
                            "orientation", std::move(value));
  }
};

TEST_F(DockUtilsTest, TheDomainIsThatOfTheDockAndAlwaysTheSameObject) {
  EXPECT_EQ(textOf(DockUtils::dockPreferencesID()), "com.apple.dock");
  EXPECT_EQ(DockUtils::dockPreferencesID(), DockUtils::dockPreferencesID());
}

TEST_F(DockUtilsTest, AMissingOrientationIsTheBottom) {
  EXPECT_FALSE(DockUtils::readDockPreference(CFSTR("orientation")));
  EXPECT_EQ(DockUtils::getDockPosition(), DockPosition::bottom);
}

TEST_F(DockUtilsTest, EachEdgeHasItsName) {
  const std::vector<std::pair<std::string, DockPosition>> edges = {
      {"top", DockPosition::top},
      {"left", DockPosition::left},
      {"right", DockPosition::right},
      {"bottom", DockPosition::bottom}};
  for (const auto& [name, position] : edges) {
    setDockOrientation(machine, name);
    EXPECT_EQ(DockUtils::getDockPosition(), position) << name;
  }
}

TEST_F(DockUtilsTest, OtherTextIsUnknown) {
  for (const char* const text : {"", "Bottom", "LEFT", " left", "right ", "middle", "下"}) {
    setDockOrientation(machine, std::string(text));
    EXPECT_EQ(DockUtils::getDockPosition(), DockPosition::unknown) << text;
  }
}

TEST_F(DockUtilsTest, AValueThatIsNotAStringMeansTheBottom) {
  setDockOrientation(machine, 2.0);
  EXPECT_EQ(DockUtils::getDockPosition(), DockPosition::bottom);
  setDockOrientation(machine, true);
  EXPECT_EQ(DockUtils::getDockPosition(), DockPosition::bottom);
}

TEST_F(DockUtilsTest, AChangeIsSeenAtOnce) {
  setDockOrientation(machine, "left");
  EXPECT_EQ(DockUtils::getDockPosition(), DockPosition::left);
  setDockOrientation(machine, "right");
  EXPECT_EQ(DockUtils::getDockPosition(), DockPosition::right);
  machine.preferences.remove(desk::dockDomain(), "orientation");
  EXPECT_EQ(DockUtils::getDockPosition(), DockPosition::bottom);
}

TEST_F(DockUtilsTest, AnyHostComesBeforeThisHostAndTheSearchListLast) {
  set(Preferences::User::any, Preferences::Host::any, "left");
  EXPECT_EQ(DockUtils::getDockPosition(), DockPosition::left);
  set(Preferences::User::current, Preferences::Host::current, "right");
  EXPECT_EQ(DockUtils::getDockPosition(), DockPosition::right);
  set(Preferences::User::current, Preferences::Host::any, "top");
  EXPECT_EQ(DockUtils::getDockPosition(), DockPosition::top);
}

TEST_F(DockUtilsTest, AValueOfAnotherTypeHidesTheOnesBehindIt) {
  set(Preferences::User::current, Preferences::Host::any, 3.0);
  set(Preferences::User::current, Preferences::Host::current, "right");
  EXPECT_EQ(DockUtils::getDockPosition(), DockPosition::bottom);
}

}  // namespace
}  // namespace orvane
