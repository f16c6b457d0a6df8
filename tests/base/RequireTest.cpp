// A violated requirement ends the process, even in release builds.
#include <gtest/gtest.h>

#include "Orvane/base/Require.hpp"

namespace orvane {
namespace {

TEST(RequireDeathTest, AFalseConditionEndsTheProcessWithItsMessage) {
  testing::GTEST_FLAG(death_test_style) = "threadsafe";
  EXPECT_DEATH(require(false, "a guard has one event tap at a time"),
               "Orvane: a guard has one event tap at a time");
}

}  // namespace
}  // namespace orvane
