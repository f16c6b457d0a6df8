// Callbacks into an object run while it exists and do nothing afterwards. A violated requirement
// ends the process, even in release builds.
#include <functional>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "Orvane/base/Lifetime.hpp"
#include "Orvane/base/Require.hpp"

namespace orvane {
namespace {

TEST(LifetimeTest, ACallbackDoesNothingOnceItsOwnerIsGone) {
  auto lifetime = std::make_unique<Lifetime>();
  int count = 0;
  const std::function<void()> callback = lifetime->whileAlive([&] { ++count; });
  const std::function<void()> copy = callback;
  callback();
  EXPECT_EQ(count, 1);
  lifetime.reset();
  callback();
  copy();
  EXPECT_EQ(count, 1);
}

TEST(LifetimeTest, ACallbackPassesItsArgumentsOnWhileItsOwnerLives) {
  const Lifetime lifetime;
  std::string seen;
  const std::function<void(const std::string&, int)> callback = lifetime.whileAlive(
      [&](const std::string& text, int number) { seen = text + std::to_string(number); });
  callback("zone ", 4);
  EXPECT_EQ(seen, "zone 4");
  callback("zone ", 5);
  EXPECT_EQ(seen, "zone 5");
}

TEST(LifetimeTest, ACallbackMayEndItsOwner) {
  auto lifetime = std::make_unique<Lifetime>();
  int count = 0;
  std::function<void()> callback = lifetime->whileAlive([&] {
    ++count;
    lifetime.reset();
  });
  callback();
  callback();
  EXPECT_EQ(count, 1);
}

TEST(RequireDeathTest, AFalseConditionEndsTheProcessWithItsMessage) {
  testing::GTEST_FLAG(death_test_style) = "threadsafe";
  EXPECT_DEATH(require(false, "a guard has one event tap at a time"),
               "Orvane: a guard has one event tap at a time");
}

}  // namespace
}  // namespace orvane
