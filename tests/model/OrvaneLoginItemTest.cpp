// Registering as a login item only when that has an effect.
#include <array>

#include <gtest/gtest.h>

#include "Orvane/model/OrvaneLoginItem.hpp"
#include "tests/support/MachineFixture.hpp"

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

}  // namespace
}  // namespace orvane
