// The displays of a desk that nobody furnished.
#include <gtest/gtest.h>

#include "Orvane/ui/layout/Rect.hpp"
#include "showroom/desktop/StandardDisplays.hpp"
#include "tests/support/MachineFixture.hpp"

namespace orvane::showroom {
namespace {

class StandardDisplaysTest : public desk::MachineFixture {};

TEST_F(StandardDisplaysTest, AreAttachedOneAfterTheOther) {
  for (std::uint32_t number = 1; number <= standardDisplayCount; ++number) {
    EXPECT_EQ(attachNextStandardDisplay(machine), number);
  }
  EXPECT_EQ(attachNextStandardDisplay(machine), 0U);
  EXPECT_EQ(machine.displays.count(), standardDisplayCount);
}

TEST_F(StandardDisplaysTest, ComeBackWhereTheyWereAfterTheyWereUnplugged) {
  attachNextStandardDisplay(machine);
  attachNextStandardDisplay(machine);
  const CGRect before = machine.displays.find(1)->frame;
  ASSERT_FALSE(machine.displays.detach(1));
  EXPECT_EQ(attachNextStandardDisplay(machine), 1U);
  EXPECT_TRUE(CGRectEqualToRect(machine.displays.find(1)->frame, before));
}

TEST_F(StandardDisplaysTest, DoNotOverlapAndTouchTheFirst) {
  while (attachNextStandardDisplay(machine) != 0) {
  }
  const auto& frames = machine.displays.globalFrames();
  const auto rect = [&](std::size_t index) {
    return ui::Rect{frames[index].origin.x, frames[index].origin.y, frames[index].size.width,
                    frames[index].size.height};
  };
  for (std::size_t index = 1; index < frames.size(); ++index) {
    for (std::size_t other = 0; other < index; ++other) {
      EXPECT_FALSE(rect(index).intersects(rect(other))) << index << " and " << other;
    }
  }
  EXPECT_TRUE(rect(0).inset(-1).intersects(rect(1)));
  EXPECT_TRUE(rect(0).inset(-1).intersects(rect(2)));
}

}  // namespace
}  // namespace orvane::showroom
