// Contract tests for the Accessibility permission.
#include "tests/contract/Arrange.hpp"
#include "tests/contract/ContractFixture.hpp"

namespace orvane {
namespace {

using AccessibilityTrustContract = ContractFixture;

TEST_F(AccessibilityTrustContract, ThePermissionIsReadAtEachCall) {
  ORVANE_ARRANGE(setTrusted(false));
  EXPECT_FALSE(AXIsProcessTrusted());
  ORVANE_ARRANGE(setTrusted(true));
  EXPECT_TRUE(AXIsProcessTrusted());
  ORVANE_ARRANGE(setTrusted(false));
  EXPECT_FALSE(AXIsProcessTrusted());
}

}  // namespace
}  // namespace orvane
