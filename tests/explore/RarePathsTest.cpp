// A state counts when it is entered.
#include <algorithm>
#include <cstddef>

#include "desk/explore/RarePaths.hpp"
#include "tests/explore/StepFixture.hpp"

namespace orvane::desk::explore {
namespace {

class RarePathsTest : public StepFixture {
 protected:
  [[nodiscard]] std::int64_t count(const char* name) const {
    const auto names = RarePaths::names();
    return paths.counts().at(
        static_cast<std::size_t>(std::ranges::find(names, name) - names.begin()));
  }

  RarePaths paths;
};

TEST_F(RarePathsTest, CountsAStateOnceHoweverLongItLasts) {
  after.status = OrvaneStatus::needsCheck;
  paths.note(step("dock edge top"));
  paths.note(step("advance 1"));
  EXPECT_EQ(count("the Dock's edge is invalid"), 1);
  after.status = OrvaneStatus::locked;
  paths.note(step("dock edge bottom"));
  after.status = OrvaneStatus::needsCheck;
  paths.note(step("dock edge top"));
  EXPECT_EQ(count("the Dock's edge is invalid"), 2);
  EXPECT_EQ(std::ranges::count(paths.counts(), 0),
            static_cast<std::ptrdiff_t>(paths.counts().size()) - 1);
}

}  // namespace
}  // namespace orvane::desk::explore
