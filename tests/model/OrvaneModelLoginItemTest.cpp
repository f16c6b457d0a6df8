// OrvaneModel's launch at login: the state that it shows, and its requests to the system.
#include <gtest/gtest.h>

#include "Orvane/model/OrvaneModel.hpp"
#include "tests/support/ModelFixture.hpp"

namespace orvane {
namespace {

using Status = appkit::LoginItem::Status;

using OrvaneModelLoginItemTest = ModelFixture;

TEST_F(OrvaneModelLoginItemTest, AFailedRegistrationShowsThePlatformsErrorUntilASuccess) {
  launch();
  machine.loginItem.error = "Operation not permitted";
  machine.loginItem.status = Status::requiresApproval;
  model->setLaunchAtLoginEnabled(true);
  EXPECT_EQ(model->launchAtLoginErrorMessage().value(), "Operation not permitted");
  EXPECT_FALSE(model->launchAtLoginEnabled().value());
  EXPECT_TRUE(model->launchAtLoginRequiresApproval().value()) << "refreshed all the same";
  EXPECT_TRUE(model->isLaunchAtLoginFailing());
  machine.loginItem.error.reset();
  model->setLaunchAtLoginEnabled(true);
  EXPECT_EQ(model->launchAtLoginErrorMessage().value(), std::nullopt);
  EXPECT_FALSE(model->launchAtLoginEnabled().value()) << "the user has to approve";
  EXPECT_TRUE(model->launchAtLoginRequiresApproval().value());
}

TEST_F(OrvaneModelLoginItemTest, NothingIsRegisteredFromATemporaryLocation) {
  launch();
  machine.bundle.isOnReadOnlyVolume = true;
  int announcements = 0;
  const Subscription subscription = model->changes().observe([&] { ++announcements; });
  model->setLaunchAtLoginEnabled(true);
  EXPECT_EQ(announcements, 2) << "the user's wish, and that it is blocked";
  EXPECT_EQ(machine.loginItem.registrationCount, 0);
  EXPECT_TRUE(model->isLaunchAtLoginBlocked());
  EXPECT_EQ(model->launchAtLoginErrorMessage().value(), std::nullopt) << "nothing has failed";
  // The installed copy may have registered itself, and can be unregistered from any location.
  machine.loginItem.status = Status::enabled;
  model->refreshLaunchAtLoginStatus();
  EXPECT_FALSE(model->isLaunchAtLoginBlocked());
  model->setLaunchAtLoginEnabled(false);
  EXPECT_EQ(machine.loginItem.unregistrationCount, 1);
  EXPECT_FALSE(model->isLaunchAtLoginBlocked()) << "the user no longer asks for it";
  machine.bundle.isOnReadOnlyVolume = false;
  model->setLaunchAtLoginEnabled(true);
  EXPECT_TRUE(model->launchAtLoginEnabled().value());
}

}  // namespace
}  // namespace orvane
