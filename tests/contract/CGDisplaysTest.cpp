// Contract tests for Core Graphics' display functions.
#include "Orvane/base/CFRef.hpp"
#include "Orvane/platform/CFText.hpp"
#include "tests/contract/Arrange.hpp"
#include "tests/contract/ContractFixture.hpp"

namespace orvane {
namespace {

using CGDisplaysContract = ContractFixture;

TEST_F(CGDisplaysContract, ReportsTheMainAndTheBuiltInDisplay) {
  ORVANE_ARRANGE(arrangeTwoDisplays());
  EXPECT_TRUE(CGDisplayIsMain(1));
  EXPECT_FALSE(CGDisplayIsMain(2));
  EXPECT_TRUE(CGDisplayIsBuiltin(1));
  EXPECT_FALSE(CGDisplayIsBuiltin(2));
}

TEST_F(CGDisplaysContract, TheUUIDOfADisplayIsTheSameEachTime) {
  ORVANE_ARRANGE(arrangeTwoDisplays());
  for (int time = 0; time < 2; ++time) {
    const auto uuid = CFRef<CFUUIDRef>::owning(CGDisplayCreateUUIDFromDisplayID(1));
    ASSERT_TRUE(uuid);
    const auto string =
        CFRef<CFStringRef>::owning(CFUUIDCreateString(kCFAllocatorDefault, uuid.get()));
    EXPECT_EQ(textOf(string.get()), leftUUID);
  }
  EXPECT_FALSE(CFRef<CFUUIDRef>::owning(CGDisplayCreateUUIDFromDisplayID(2))) << "it has none";
}

TEST_F(CGDisplaysContract, AnUnknownDisplayIsNeitherMainNorBuiltInAndHasNoUUID) {
  constexpr CGDirectDisplayID noDisplay = 0x7FFF1234;
  EXPECT_FALSE(CGDisplayIsMain(noDisplay));
  EXPECT_FALSE(CGDisplayIsBuiltin(noDisplay));
  EXPECT_FALSE(CFRef<CFUUIDRef>::owning(CGDisplayCreateUUIDFromDisplayID(noDisplay)));
}

}  // namespace
}  // namespace orvane
