// Contract tests for the application object.
#include "Orvane/platform/appkit/Application.hpp"
#include "tests/contract/Arrange.hpp"
#include "tests/contract/ContractFixture.hpp"

namespace orvane {
namespace {

using ApplicationContract = ContractFixture;

TEST_F(ApplicationContract, StoppingAModalSessionThatDoesNotRunDoesNothing) {
  appkit::Application::stopModal(appkit::ModalResponse::alertFirstButton);
  letTimePass(0);
}

TEST_F(ApplicationContract, WithoutAWindowThereIsNoKeyOrModalWindow) {
  EXPECT_FALSE(appkit::Application::keyWindow().has_value());
  EXPECT_FALSE(appkit::Application::modalWindow().has_value());
}

TEST_F(ApplicationContract, TheMouseLocationIsInWindowSystemCoordinates) {
  ORVANE_ARRANGE(arrangeTwoDisplays());
  ORVANE_ARRANGE(movePointer(CGPointMake(1200, 100)));
  const CGPoint place = appkit::Application::mouseLocation();
  EXPECT_EQ(place.x, 1200);
  EXPECT_EQ(place.y, 700);
}

}  // namespace
}  // namespace orvane
