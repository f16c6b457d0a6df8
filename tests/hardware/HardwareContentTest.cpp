// The values of the hardware panel.
#include "tests/hardware/HardwareFixture.hpp"

namespace orvane::showroom {
namespace {

class HardwareContentTest : public HardwareFixture {
 protected:
  [[nodiscard]] std::string counter(const std::string& label) const {
    for (const HardwareCounter& candidate : content().counters) {
      if (candidate.label == label) {
        return candidate.value;
      }
    }
    ADD_FAILURE() << "no counter " << label;
    return {};
  }
};

TEST_F(HardwareContentTest, ListsTheDisplaysWithTheirSizes) {
  const std::vector<HardwareDisplay> displays = content().displays;
  ASSERT_EQ(displays.size(), 2U);
  EXPECT_EQ(displays[0].name, "Built-in Display");
  EXPECT_EQ(displays[0].size, "1024 × 640");
  EXPECT_TRUE(displays[0].isMain);
  EXPECT_EQ(displays[1].number, 2U);
  EXPECT_FALSE(displays[1].isMain);
}

TEST_F(HardwareContentTest, FollowsTheDockAndTheCounters) {
  EXPECT_EQ(counter("Dock on"), "Built-in Display");
  EXPECT_EQ(counter("Dock came up"), "0");
  pressRightDisplay(2);
  EXPECT_EQ(counter("Dock on"), "Right Display");
  EXPECT_EQ(counter("Dock came up"), "1");
  EXPECT_EQ(counter("Moved back"), "0");
  EXPECT_EQ(counter("Events per second"), "3");
  EXPECT_EQ(counter("Movements"), std::to_string(machine.counters.hardwareMovements));
  pinOrUnpin();
  session.movePointerBy(0, -100);
  pressRightDisplay(5);
  EXPECT_EQ(counter("Moved back"), "5");
}

TEST_F(HardwareContentTest, ShowsTheStatusAndTheLastMessage) {
  EXPECT_EQ(counter("Orvane"), "Unlocked");
  EXPECT_EQ(content().message, "");
  pinOrUnpin();
  EXPECT_EQ(counter("Orvane"), "Locked");
  EXPECT_EQ(content().message, "Mouse guard started. Trigger zones: 1");
  machine.modifierKeys.hold(kCGEventFlagMaskAlternate);
  session.movePointerBy(1, 0);
  EXPECT_EQ(counter("Orvane"), "Unlocked for now");
  machine.modifierKeys.releaseAll();
  session.movePointerBy(1, 0);
  ASSERT_FALSE(machine.displays.detach(1));
  machine.runDue();
  EXPECT_EQ(counter("Orvane"), "Display missing");
  machine.permission.setTrusted(false);
  session.application().model().refreshDisplays();
  EXPECT_EQ(counter("Orvane"), "No permission");
  session.application().crash();
  EXPECT_EQ(counter("Orvane"), "Not running");
  ASSERT_FALSE(machine.displays.detach(2));
  EXPECT_EQ(counter("Dock on"), "nowhere");
}

}  // namespace
}  // namespace orvane::showroom
