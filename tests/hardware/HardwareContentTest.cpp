// What the panel says of the machine.
#include "tests/hardware/HardwareFixture.hpp"

namespace orvane::showroom {
namespace {

class HardwareContentTest : public HardwareFixture {
 protected:
  [[nodiscard]] std::string figure(const std::string& label) const {
    for (const HardwareCounter& candidate : content().counters) {
      if (candidate.label == label) {
        return candidate.value;
      }
    }
    ADD_FAILURE() << "no figure " << label;
    return {};
  }
  /// Presses so often against the lower edge of the display on the right.
  void pressRightDisplay(int times) {
    const CGPoint place = machine.pointer.place();
    session.movePointerBy(1500 - place.x, 600 - place.y);
    for (int time = 0; time < times; ++time) {
      session.movePointerBy(0, 60);
    }
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

TEST_F(HardwareContentTest, FollowsTheDockTheBlocksAndTheEvents) {
  EXPECT_EQ(figure("Dock on"), "Built-in Display");
  EXPECT_EQ(figure("Dock came up"), "0");
  pressRightDisplay(2);
  EXPECT_EQ(figure("Dock on"), "Right Display");
  EXPECT_EQ(figure("Dock came up"), "1");
  EXPECT_EQ(figure("Moved back"), "0");
  EXPECT_EQ(figure("Events per second"), "3");
  EXPECT_EQ(figure("Movements"), std::to_string(machine.counters.hardwareMovements));
  session.application().model().toggleSelectedDisplayLock();
  machine.runDue();
  session.movePointerBy(0, -100);
  pressRightDisplay(5);
  EXPECT_EQ(figure("Moved back"), "5");
}

TEST_F(HardwareContentTest, SaysHowOrvaneIsAndWhatTheGuardSaidLast) {
  EXPECT_EQ(figure("Orvane"), "Unlocked");
  EXPECT_EQ(content().message, "");
  session.application().model().refreshDisplays();
  session.application().model().toggleSelectedDisplayLock();
  machine.runDue();
  EXPECT_EQ(figure("Orvane"), "Locked");
  EXPECT_EQ(content().message, "Mouse guard started. Trigger zones: 1");
  machine.modifierKeys.hold(kCGEventFlagMaskAlternate);
  session.movePointerBy(1, 0);
  EXPECT_EQ(figure("Orvane"), "Unlocked for now");
  machine.modifierKeys.releaseAll();
  session.movePointerBy(1, 0);
  hardware.detachDisplay(1);
  EXPECT_EQ(figure("Orvane"), "Display missing");
  hardware.setTrusted(false);
  session.application().model().refreshDisplays();
  EXPECT_EQ(figure("Orvane"), "No permission");
  hardware.crash();
  EXPECT_EQ(figure("Orvane"), "Not running");
  hardware.detachDisplay(2);
  EXPECT_EQ(figure("Dock on"), "nowhere");
}

}  // namespace
}  // namespace orvane::showroom
