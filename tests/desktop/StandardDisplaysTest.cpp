// The standard displays.
#include <gtest/gtest.h>

#include "showroom/desktop/Rects.hpp"
#include "showroom/desktop/StandardDisplays.hpp"
#include "tests/support/MachineFixture.hpp"

namespace orvane::showroom {
namespace {

class StandardDisplaysTest : public desk::MachineFixture {};

TEST_F(StandardDisplaysTest, AreAttachedInTheirOrder) {
  for (std::uint32_t number = 1; number <= standardDisplayCount; ++number) {
    EXPECT_EQ(attachNextStandardDisplay(machine), number);
  }
  EXPECT_EQ(attachNextStandardDisplay(machine), 0U);
  EXPECT_EQ(machine.displays.count(), standardDisplayCount);
}

TEST_F(StandardDisplaysTest, KeepTheirFramesWhenTheyAreAttachedAgain) {
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
  for (std::size_t index = 1; index < frames.size(); ++index) {
    for (std::size_t other = 0; other < index; ++other) {
      EXPECT_FALSE(rectOf(frames[index]).intersects(rectOf(frames[other])))
          << index << " and " << other;
    }
  }
  EXPECT_TRUE(rectOf(frames[0]).inset(-1).intersects(rectOf(frames[1])));
  EXPECT_TRUE(rectOf(frames[0]).inset(-1).intersects(rectOf(frames[2])));
}

}  // namespace
}  // namespace orvane::showroom
