// Contract tests for the application's bundle.
#include "Orvane/platform/appkit/Bundle.hpp"
#include "tests/contract/Arrange.hpp"
#include "tests/contract/ContractFixture.hpp"

namespace orvane {
namespace {

using appkit::Bundle;
using BundleContract = ContractFixture;

TEST_F(BundleContract, ItsLocationIsAFileURL) {
  const std::optional<std::string> url = Bundle::url();
  ASSERT_TRUE(url);
  EXPECT_TRUE(url->starts_with("file:///")) << *url;
}

TEST_F(BundleContract, AReadOnlyVolumeIsRecognised) {
  EXPECT_FALSE(Bundle::isOnReadOnlyVolume());
  ORVANE_ARRANGE(makeVolumeReadOnly());
  EXPECT_TRUE(Bundle::isOnReadOnlyVolume());
}

}  // namespace
}  // namespace orvane
