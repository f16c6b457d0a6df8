// The counts of writes of user defaults.
#include <gtest/gtest.h>

#include "desk/machine/UserDefaultsStore.hpp"

namespace orvane::desk {
namespace {

TEST(UserDefaultsStoreTest, CountsWritesOfEachKey) {
  UserDefaultsStore store;
  store.set("a", true);
  store.set("a", true);
  store.remove("a");
  store.remove("b");
  EXPECT_EQ(store.value("a"), std::nullopt);
  EXPECT_EQ(store.writeCount("a"), 3);
  EXPECT_EQ(store.writeCount("b"), 1);
  EXPECT_EQ(store.writeCount("c"), 0);
  EXPECT_EQ(store.writeCount(), 4);
}

}  // namespace
}  // namespace orvane::desk
