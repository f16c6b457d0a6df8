// What the application relies on in the counting of references.
#include "tests/contract/ContractFixture.hpp"

namespace orvane {
namespace {

using CFTypeContract = ContractFixture;

TEST_F(CFTypeContract, AnObjectLivesAsLongAsAnybodyKeepsIt) {
  // Long enough that no platform hides it in the reference itself.
  const CFStringRef string = CFStringCreateWithCString(
      kCFAllocatorDefault, "a text of more than a few characters", kCFStringEncodingUTF8);
  EXPECT_EQ(CFRetain(string), string);
  CFRelease(string);
  EXPECT_EQ(CFStringGetLength(string), 36);
  CFRelease(string);
}

}  // namespace
}  // namespace orvane
