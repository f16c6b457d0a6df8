// Reading the Dock's edge from its preferences.
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

TEST_F(DockUtilsTest, TheOrientationIsReadAtEachCallAndIsTheBottomUnlessItIsText) {
  EXPECT_FALSE(DockUtils::readDockPreference(CFSTR("orientation")));
  EXPECT_EQ(DockUtils::getDockPosition(), DockPosition::bottom);
  const std::vector<std::pair<desk::PropertyValue, DockPosition>> values = {
      {"top", DockPosition::top},        {"left", DockPosition::left},
      {"right", DockPosition::right},    {"bottom", DockPosition::bottom},
      {"", DockPosition::unknown},       {"Bottom", DockPosition::unknown},
      {" left", DockPosition::unknown},  {"right ", DockPosition::unknown},
      {"middle", DockPosition::unknown}, {"下", DockPosition::unknown},
      {2.0, DockPosition::bottom},       {"left", DockPosition::left},
      {true, DockPosition::bottom},
  };
  for (const auto& [value, position] : values) {
    desk::setDockOrientation(machine, value);
    EXPECT_EQ(DockUtils::getDockPosition(), position) << testing::PrintToString(value);
  }
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
