// The permission and the announcement of its changes.
#include <gtest/gtest.h>

#include "desk/machine/Permission.hpp"

namespace orvane::desk {
namespace {

TEST(PermissionTest, AnnouncesItsChangesAndNothingElse) {
  Permission permission;
  int changes = 0;
  permission.onChange([&changes] { ++changes; });
  EXPECT_FALSE(permission.isTrusted());
  permission.setTrusted(false);
  EXPECT_EQ(changes, 0);
  permission.setTrusted(true);
  permission.setTrusted(true);
  EXPECT_TRUE(permission.isTrusted());
  EXPECT_EQ(changes, 1);
  permission.setTrusted(false);
  permission.setTrusted(false);
  EXPECT_EQ(changes, 2);
}

}  // namespace
}  // namespace orvane::desk
