// Contract tests for the application object.
#include "Orvane/platform/appkit/Application.hpp"
#include "Orvane/platform/appkit/MainQueue.hpp"
#include "Orvane/platform/appkit/Timer.hpp"
#include "tests/contract/Arrange.hpp"
#include "tests/contract/ContractFixture.hpp"

namespace orvane {
namespace {

using ApplicationContract = ContractFixture;

TEST_F(ApplicationContract, TheActivationPolicyCanBeSetMoreThanOnce) {
  appkit::Application::setActivationPolicy(appkit::ActivationPolicy::accessory);
  appkit::Application::setActivationPolicy(appkit::ActivationPolicy::accessory);
  letTimePass(0);
}

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

TEST_F(ApplicationContract, AModalSessionHoldsTheMainQueueAndEndsWithItsResponse) {
  appkit::Window panel(appkit::WindowKind::panel, CGRectMake(0, 0, 100, 100),
                       appkit::StyleMask::titled);
  int response = 0;
  bool taskRan = false;
  bool taskRanWithin = true;
  const auto timer = appkit::Timer::repeating(0.1, appkit::RunLoopMode::common, [&] {
    taskRanWithin = taskRan;
    EXPECT_EQ(appkit::Application::modalWindow(), panel);
    appkit::Application::stopModal(appkit::ModalResponse::alertSecondButton);
  });
  appkit::MainQueue::async([&] {
    appkit::MainQueue::async([&] { taskRan = true; });
    appkit::Application::runModal(panel, [&](int answer) { response = answer; });
  });
  letTimePass(0.15);
  EXPECT_EQ(response, 1001);
  EXPECT_FALSE(taskRanWithin);
  EXPECT_TRUE(taskRan);
  panel.close();
}

}  // namespace
}  // namespace orvane
