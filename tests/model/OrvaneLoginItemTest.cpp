// Registering as a login item only when that has an effect, and the state that the model shows.
#include <array>

#include <gtest/gtest.h>

#include "Orvane/model/OrvaneLoginItem.hpp"
#include "Orvane/model/OrvaneModel.hpp"
#include "tests/support/MachineFixture.hpp"
#include "tests/support/ModelFixture.hpp"

namespace orvane {
namespace {

using Status = appkit::LoginItem::Status;

class OrvaneLoginItemTest : public desk::MachineFixture {};

TEST_F(OrvaneLoginItemTest, RegistersAndUnregistersUnlessThatChangesNothing) {
  for (const Status status :
       {Status::notRegistered, Status::requiresApproval, Status::notFound, Status::enabled}) {
    machine.loginItem = {.status = status, .error = std::nullopt};
    EXPECT_EQ(OrvaneLoginItem::setEnabled(true), std::nullopt);
    EXPECT_EQ(machine.loginItem.registrationCount, status == Status::enabled ? 0 : 1);
    EXPECT_EQ(machine.loginItem.unregistrationCount, 0);
    machine.loginItem = {.status = status, .error = std::nullopt};
    EXPECT_EQ(OrvaneLoginItem::setEnabled(false), std::nullopt);
    EXPECT_EQ(machine.loginItem.registrationCount, 0);
    EXPECT_EQ(machine.loginItem.unregistrationCount, status == Status::notRegistered ? 0 : 1);
  }
}

TEST_F(OrvaneLoginItemTest, ADiskImageAndATranslocatedPathAreNotPermanent) {
  EXPECT_TRUE(OrvaneLoginItem::isInPermanentLocation());
  machine.bundle.isOnReadOnlyVolume = true;
  EXPECT_FALSE(OrvaneLoginItem::isInPermanentLocation());
  machine.bundle = {.url =
                        "file:///private/var/folders/x2/k8/T/AppTranslocation/"
                        "9F0C21B4-7A54-4F5E-8F0B-0E7C1A8F31C5/d/Orvane.app/"};
  EXPECT_FALSE(OrvaneLoginItem::isInPermanentLocation());
  machine.bundle = {.url = "file:///Users/me/Applications/Orvane.app/"};
  EXPECT_TRUE(OrvaneLoginItem::isInPermanentLocation());
}

TEST_F(OrvaneLoginItemTest, ThePlatformsErrorIsReturnedUnchanged) {
  machine.loginItem.error = "Operation not permitted";
  EXPECT_EQ(OrvaneLoginItem::setEnabled(true), "Operation not permitted");
  machine.loginItem.status = Status::enabled;
  EXPECT_EQ(OrvaneLoginItem::setEnabled(false), "Operation not permitted");
  EXPECT_EQ(OrvaneLoginItem::setEnabled(true), std::nullopt) << "it is already registered";
}

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
