// The desk's strings: constants and reference counting.
#include <gtest/gtest.h>

#include "desk/quartz/CFObjects.hpp"
#include "tests/support/MachineFixture.hpp"

namespace orvane::desk {
namespace {

using CFStringTest = MachineFixture;

TEST_F(CFStringTest, AConstantIsOneObjectForAllMachinesAndNotCounted) {
  const CFStringRef constant = CFSTR("orientation");
  EXPECT_EQ(constant, deskConstantString("orientation"));
  EXPECT_NE(constant, CFSTR("autohide"));
  CFRelease(constant);
  CFRelease(constant);
  EXPECT_EQ(*textOf(constant, "test"), "orientation");
  EXPECT_EQ(machine.objects.liveCount(), 0U);
}

}  // namespace
}  // namespace orvane::desk
