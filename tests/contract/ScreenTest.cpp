// Contract tests for the list of screens and Core Graphics' display functions.
#include "Orvane/base/CFRef.hpp"
#include "Orvane/platform/CFText.hpp"
#include "Orvane/platform/appkit/Screen.hpp"
#include "tests/contract/Arrange.hpp"
#include "tests/contract/ContractFixture.hpp"

namespace orvane {
namespace {

using appkit::Screen;
using ScreenContract = ContractFixture;

TEST_F(ScreenContract, EveryScreenHasAFrameAndAVisiblePartOfIt) {
  for (const Screen& screen : Screen::screens()) {
    const CGRect frame = screen.frame();
    const CGRect visible = screen.visibleFrame();
    EXPECT_GT(CGRectGetWidth(frame), 0);
    EXPECT_GT(CGRectGetHeight(frame), 0);
    EXPECT_GE(CGRectGetMinX(visible), CGRectGetMinX(frame));
    EXPECT_GE(CGRectGetMinY(visible), CGRectGetMinY(frame));
    EXPECT_LE(CGRectGetMaxX(visible), CGRectGetMaxX(frame));
    EXPECT_LE(CGRectGetMaxY(visible), CGRectGetMaxY(frame));
  }
}

TEST_F(ScreenContract, TheLowerLeftCornerOfTheFirstScreenIsTheOrigin) {
  ORVANE_ARRANGE(arrangeTwoDisplays());
  const auto screens = Screen::screens();
  ASSERT_EQ(screens.size(), 2U);
  EXPECT_TRUE(CGRectEqualToRect(screens[0].frame(), CGRectMake(0, 0, 1000, 800)));
  EXPECT_TRUE(CGRectEqualToRect(screens[1].frame(), CGRectMake(1000, 0, 1000, 800)));
  const auto main = Screen::mainScreen();
  ASSERT_TRUE(main);
  EXPECT_EQ(main->deviceNumber("NSScreenNumber"), 1);
}

TEST_F(ScreenContract, ScreensHaveNamesAndDeviceDescriptions) {
  ORVANE_ARRANGE(arrangeTwoDisplays());
  const auto screens = Screen::screens();
  EXPECT_EQ(screens[0].localizedName(), "Left");
  EXPECT_EQ(screens[1].localizedName(), "Right");
  EXPECT_EQ(screens[0].deviceNumber("NSScreenNumber"), 1);
  EXPECT_EQ(screens[1].deviceNumber("NSScreenNumber"), 2);
  EXPECT_EQ(screens[0].deviceNumber("NSDeviceBitsPerSample"), 8);
  EXPECT_EQ(screens[0].deviceString("NSDeviceColorSpaceName"), "NSCalibratedRGBColorSpace");
  EXPECT_EQ(screens[0].deviceNumber("NoSuchEntry"), std::nullopt);
  EXPECT_EQ(screens[0].deviceString("NoSuchEntry"), std::nullopt);
  EXPECT_EQ(screens[0].deviceNumber("NSDeviceColorSpaceName"), std::nullopt) << "it is a string";
  EXPECT_EQ(screens[0].deviceString("NSScreenNumber"), std::nullopt) << "it is a number";
}

TEST_F(ScreenContract, AScreenIsASnapshot) {
  ORVANE_ARRANGE(arrangeTwoDisplays());
  const auto before = Screen::screens();
  ORVANE_ARRANGE(changeDisplays());
  EXPECT_EQ(Screen::screens().size(), 3U);
  ASSERT_EQ(before.size(), 2U);
  EXPECT_EQ(before[1].localizedName(), "Right");
}

using CGDisplaysContract = ContractFixture;

TEST_F(CGDisplaysContract, ReportsTheMainAndTheBuiltInDisplay) {
  ORVANE_ARRANGE(arrangeTwoDisplays());
  EXPECT_TRUE(CGDisplayIsMain(1));
  EXPECT_FALSE(CGDisplayIsMain(2));
  EXPECT_TRUE(CGDisplayIsBuiltin(1));
  EXPECT_FALSE(CGDisplayIsBuiltin(2));
}

TEST_F(CGDisplaysContract, TheUUIDOfADisplayIsTheSameEachTime) {
  ORVANE_ARRANGE(arrangeTwoDisplays());
  for (int time = 0; time < 2; ++time) {
    const auto uuid = CFRef<CFUUIDRef>::owning(CGDisplayCreateUUIDFromDisplayID(1));
    ASSERT_TRUE(uuid);
    const auto string =
        CFRef<CFStringRef>::owning(CFUUIDCreateString(kCFAllocatorDefault, uuid.get()));
    EXPECT_EQ(textOf(string.get()), leftUUID);
  }
  EXPECT_FALSE(CFRef<CFUUIDRef>::owning(CGDisplayCreateUUIDFromDisplayID(2))) << "it has none";
}

TEST_F(CGDisplaysContract, AnUnknownDisplayIsNeitherMainNorBuiltInAndHasNoUUID) {
  constexpr CGDirectDisplayID noDisplay = 0x7FFF1234;
  EXPECT_FALSE(CGDisplayIsMain(noDisplay));
  EXPECT_FALSE(CGDisplayIsBuiltin(noDisplay));
  EXPECT_FALSE(CFRef<CFUUIDRef>::owning(CGDisplayCreateUUIDFromDisplayID(noDisplay)));
}

}  // namespace
}  // namespace orvane
