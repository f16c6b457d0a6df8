// Stored user defaults and the counts of writes.
#include <gtest/gtest.h>

#include "desk/machine/UserDefaultsStore.hpp"

namespace orvane::desk {
namespace {

TEST(UserDefaultsStoreTest, KeepsValuesOfEachTypeInTheOrderOfTheirKeys) {
  UserDefaultsStore store;
  store.set("b", std::string("text"));
  store.set("c", 1.5);
  store.set("a", true);
  std::string keys;
  for (const auto& [key, value] : store.values()) {
    keys += key;
  }
  EXPECT_EQ(keys, "abc");
  EXPECT_EQ(store.value("a"), PropertyValue(true));
  EXPECT_EQ(store.value("b"), PropertyValue(std::string("text")));
  EXPECT_EQ(store.value("c"), PropertyValue(1.5));
  EXPECT_EQ(store.value("d"), std::nullopt);
}

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
