// Contract tests for reference counting.
#include "tests/contract/ContractFixture.hpp"

namespace orvane {
namespace {

using CFTypeContract = ContractFixture;

TEST_F(CFTypeContract, AnObjectLivesUntilItsLastRelease) {
  // Too long for a tagged pointer, which would not be counted.
  const CFStringRef string = CFStringCreateWithCString(
      kCFAllocatorDefault, "a text of more than a few characters", kCFStringEncodingUTF8);
  EXPECT_EQ(CFRetain(string), string);
  CFRelease(string);
  EXPECT_EQ(CFStringGetLength(string), 36);
  CFRelease(string);
}

}  // namespace
}  // namespace orvane
