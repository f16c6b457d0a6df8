// The permission, and its loss.
#include <gtest/gtest.h>

#include "desk/machine/Permission.hpp"

namespace orvane::desk {
namespace {

TEST(Permission, TellsOfItsLossAndOfNothingElse) {
  Permission permission;
  int losses = 0;
  permission.onLost([&losses] { ++losses; });
  EXPECT_FALSE(permission.isTrusted());
  permission.setTrusted(false);
  permission.setTrusted(true);
  permission.setTrusted(true);
  EXPECT_TRUE(permission.isTrusted());
  EXPECT_EQ(losses, 0);
  permission.setTrusted(false);
  permission.setTrusted(false);
  EXPECT_EQ(losses, 1);
}

}  // namespace
}  // namespace orvane::desk
