// Switching machines on and off, and the report at the end.
#include <gtest/gtest.h>

#include "desk/machine/MachineScope.hpp"

namespace orvane::desk {
namespace {

TEST(MachineScopeTest, ReportsLeakedObjects) {
  MachineScope scope;
  const CFStringRef text =
      CFStringCreateWithCString(kCFAllocatorDefault, "left behind", kCFStringEncodingUTF8);
  Machine::current().objects.retain(text, "test");
  EXPECT_EQ(scope.end(),
            std::vector<std::string>{"not released: CFString \"left behind\", references: 2"});
}

TEST(MachineScopeTest, ReportsFaults) {
  MachineScope scope;
  const CFStringRef text =
      CFStringCreateWithCString(kCFAllocatorDefault, "twice", kCFStringEncodingUTF8);
  CFRelease(text);
  CFRelease(text);
  EXPECT_EQ(scope.end(),
            std::vector<std::string>{"fault: CFRelease: CFString \"twice\" was already released"});
}

TEST(MachineScopeTest, ANewMachineStartsAfresh) {
  {
    MachineScope scope;
    scope->userDefaults.set("key", true);
    scope->permission.setTrusted(true);
    scope->advance(5);
  }
  const MachineScope scope;
  EXPECT_TRUE(scope->userDefaults.values().empty());
  EXPECT_FALSE(scope->permission.isTrusted());
  EXPECT_EQ(scope->clock.now(), 0);
}

TEST(MachineScopeDeathTest, ASecondMachineAtATimeIsRefused) {
  const MachineScope scope;
  EXPECT_DEATH(MachineScope(), "switched on already");
}

TEST(MachineScopeDeathTest, WithoutAMachineThePlatformIsUnavailable) {
  EXPECT_DEATH(Machine::current(), "no machine is switched on");
}

}  // namespace
}  // namespace orvane::desk
