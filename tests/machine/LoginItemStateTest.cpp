// Registrations of the login item, and their failure.
#include <gtest/gtest.h>

#include "desk/machine/LoginItemState.hpp"

namespace orvane::desk {
namespace {

using Status = appkit::LoginItem::Status;

TEST(LoginItemStateTest, AnItemThatNeedsApprovalIsNotEnabledByRegisteringItAgain) {
  LoginItemState item;
  item.status = Status::requiresApproval;
  EXPECT_EQ(item.registerApplication(), std::nullopt);
  EXPECT_EQ(item.status, Status::requiresApproval);
  EXPECT_EQ(item.unregisterApplication(), std::nullopt);
  EXPECT_EQ(item.status, Status::notRegistered);
}

TEST(LoginItemStateTest, AnErrorLeavesTheStatusAsItIs) {
  LoginItemState item;
  item.status = Status::requiresApproval;
  item.error = "Operation not permitted";
  EXPECT_EQ(item.registerApplication(), "Operation not permitted");
  EXPECT_EQ(item.unregisterApplication(), "Operation not permitted");
  EXPECT_EQ(item.status, Status::requiresApproval);
  EXPECT_EQ(item.registrationCount, 1);
  EXPECT_EQ(item.unregistrationCount, 1);
}

}  // namespace
}  // namespace orvane::desk
