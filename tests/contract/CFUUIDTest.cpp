// Contract tests for the UUIDs of displays.
#include <string>

#include "Orvane/base/CFRef.hpp"
#include "tests/contract/Arrange.hpp"
#include "tests/contract/ContractFixture.hpp"

namespace orvane {
namespace {

using CFUUIDContract = ContractFixture;

TEST_F(CFUUIDContract, ItsStringIsTheSameEachTime) {
  ORVANE_ARRANGE(arrangeTwoDisplays());
  for (int time = 0; time < 2; ++time) {
    const auto uuid = CFRef<CFUUIDRef>::owning(CGDisplayCreateUUIDFromDisplayID(1));
    ASSERT_TRUE(uuid);
    const auto string =
        CFRef<CFStringRef>::owning(CFUUIDCreateString(kCFAllocatorDefault, uuid.get()));
    ASSERT_TRUE(string);
    char buffer[64] = "";
    ASSERT_TRUE(CFStringGetCString(string.get(), buffer, sizeof buffer, kCFStringEncodingUTF8));
    EXPECT_STREQ(buffer, leftUUID);
  }
}

}  // namespace
}  // namespace orvane
