// Preferences: domains, their search order, and the application's cached copy.
#include <gtest/gtest.h>

#include "desk/machine/Preferences.hpp"

namespace orvane::desk {
namespace {

using Domain = Preferences::Domain;
using User = Preferences::User;
using Host = Preferences::Host;

PropertyValue text(const char* content) {
  return std::string(content);
}

TEST(PreferencesTest, KeepOneValueForEachDomain) {
  Preferences preferences;
  preferences.set({"dock"}, "edge", text("left"));
  preferences.set({"dock", User::current, Host::current}, "edge", 3.0);
  EXPECT_EQ(preferences.seen(Domain{"dock"}, "edge"), text("left"));
  EXPECT_EQ(preferences.seen(Domain{"dock", User::current, Host::current}, "edge"),
            PropertyValue(3.0));
  EXPECT_EQ(preferences.seen(Domain{"dock", User::any, Host::any}, "edge"), std::nullopt);
  EXPECT_EQ(preferences.seen(Domain{"finder"}, "edge"), std::nullopt);
}

TEST(PreferencesTest, AreSearchedFromTheNearestDomainToTheFarthest) {
  Preferences preferences;
  preferences.set({"dock", User::any, Host::any}, "edge", text("far"));
  EXPECT_EQ(preferences.stored("dock", "edge"), text("far"));
  preferences.set({"dock", User::any, Host::current}, "edge", text("third"));
  EXPECT_EQ(preferences.stored("dock", "edge"), text("third"));
  preferences.set({"dock"}, "edge", text("second"));
  EXPECT_EQ(preferences.stored("dock", "edge"), text("second"));
  preferences.set({"dock", User::current, Host::current}, "edge", text("near"));
  EXPECT_EQ(preferences.stored("dock", "edge"), text("near"));
  preferences.remove({"dock", User::current, Host::current}, "edge");
  EXPECT_EQ(preferences.stored("dock", "edge"), text("second"));
}

TEST(PreferencesTest, TheApplicationSeesACopyUntilItSynchronises) {
  Preferences preferences;
  preferences.set({"dock"}, "edge", text("left"));
  EXPECT_EQ(preferences.seen(Domain{"dock"}, "edge"), text("left"));
  preferences.set({"dock"}, "edge", text("right"));
  preferences.set({"dock"}, "other", true);
  EXPECT_EQ(preferences.seen(Domain{"dock"}, "edge"), text("left"));
  EXPECT_EQ(preferences.seen("dock", "edge"), text("left"));
  EXPECT_EQ(preferences.seen("dock", "other"), std::nullopt);
  preferences.synchronise("finder");
  EXPECT_EQ(preferences.seen("dock", "edge"), text("left"));
  preferences.synchronise("dock");
  EXPECT_EQ(preferences.seen("dock", "edge"), text("right"));
  EXPECT_EQ(preferences.seen("dock", "other"), PropertyValue(true));
}

TEST(PreferencesTest, ANewProcessReadsStoredValues) {
  Preferences preferences;
  EXPECT_EQ(preferences.seen("dock", "edge"), std::nullopt);
  preferences.set({"dock"}, "edge", text("left"));
  EXPECT_EQ(preferences.seen("dock", "edge"), std::nullopt);
  preferences.forgetCopies();
  EXPECT_EQ(preferences.seen("dock", "edge"), text("left"));
}

}  // namespace
}  // namespace orvane::desk
