// Contract tests for the registration as a login item.
#include "Orvane/platform/appkit/LoginItem.hpp"
#include "tests/contract/Arrange.hpp"
#include "tests/contract/ContractFixture.hpp"

namespace orvane {
namespace {

using appkit::LoginItem;
using LoginItemContract = ContractFixture;

TEST_F(LoginItemContract, TheStatusIsAlwaysReadable) {
  const int status = static_cast<int>(LoginItem::status());
  EXPECT_GE(status, 0);
  EXPECT_LE(status, 3);
}

TEST_F(LoginItemContract, RegisteringAndUnregisteringShowInTheStatus) {
  ORVANE_ARRANGE(canRegisterLoginItem());
  EXPECT_EQ(LoginItem::registerApplication(), std::nullopt);
  EXPECT_EQ(LoginItem::status(), LoginItem::Status::enabled);
  EXPECT_EQ(LoginItem::unregisterApplication(), std::nullopt);
  EXPECT_EQ(LoginItem::status(), LoginItem::Status::notRegistered);
}

TEST_F(LoginItemContract, AFailureReturnsThePlatformsErrorAndKeepsTheStatus) {
  ORVANE_ARRANGE(failLoginItem("Operation not permitted"));
  const LoginItem::Status before = LoginItem::status();
  EXPECT_EQ(LoginItem::registerApplication(), "Operation not permitted");
  EXPECT_EQ(LoginItem::status(), before);
}

}  // namespace
}  // namespace orvane
