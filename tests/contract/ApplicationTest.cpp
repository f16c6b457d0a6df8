// What the application relies on in the application object.
#include "Orvane/platform/appkit/Application.hpp"
#include "tests/contract/ContractFixture.hpp"

namespace orvane {
namespace {

using ApplicationContract = ContractFixture;

TEST_F(ApplicationContract, TheActivationPolicyCanBeSetMoreThanOnce) {
  appkit::Application::setActivationPolicy(appkit::ActivationPolicy::accessory);
  appkit::Application::setActivationPolicy(appkit::ActivationPolicy::accessory);
  letTimePass(0);
}

}  // namespace
}  // namespace orvane
