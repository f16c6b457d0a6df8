// The window of System Settings, its Accessibility page, the links that open it, and its language.
#include <gtest/gtest.h>

#include "desk/settings/SystemLanguage.hpp"
#include "tests/settings/SystemSettingsFixture.hpp"

namespace orvane::desk {
namespace {

class SystemSettingsTest : public SystemSettingsFixture {
 protected:
  /// A window at the left, from which a file can be dragged.
  appkit::Window makeDragSource(const std::string& fileUrl) {
    appkit::Window source = makeWindow({0, 0}, "source");
    source.setContentView(hosting(ui::Rectangle().dragSource([fileUrl] {
      return std::optional(ui::DragRequest{fileUrl, "icon"});
    })));
    source.orderFrontRegardless();
    machine.runDue();
    return source;
  }
  /// Drags the file from there onto the list.
  void dragToList() {
    press({20, 780});
    moveTo({30, 780});
    const CGPoint corner = server().topLeftOf(*window());
    const ui::Rect list = settings.listFrame().value_or(ui::Rect{});
    moveTo({corner.x + list.x + 100, corner.y + list.y + 20});
  }
};

TEST_F(SystemSettingsTest, WithoutTheOtherPagesItHasOnlyTheAccessibilityPage) {
  open();
  EXPECT_EQ(settings.state().page, SystemSettings::accessibilityPage);
  EXPECT_FALSE(control("Back"));
  EXPECT_FALSE(control("General"));
}

TEST_F(SystemSettingsTest, OtherAndRefusedLinksOpenNothing) {
  open("https://example.org/");
  machine.links.refuse("x-apple");
  open();
  EXPECT_EQ(window(), nullptr);
}

TEST_F(SystemSettingsTest, OpeningItDeactivatesTheApplicationAndTakesTheKeyFocus) {
  appkit::Window own = makeWindow({0, 0}, "own");
  own.makeKeyAndOrderFront();
  appkit::Application::activateIgnoringOtherApps();
  EXPECT_TRUE(own.isKeyWindow());
  open();
  EXPECT_FALSE(own.isKeyWindow());
  EXPECT_EQ(server().focus.keyReceiver(), window());
  EXPECT_EQ(window()->owner, WindowOwner::system);
}

TEST_F(SystemSettingsTest, ItOpensOnTheDisplayWithThePointerAndStaysWhereItIsDragged) {
  moveTo({1500, 400});
  open();
  const CGRect placed = window()->frame;
  EXPECT_GE(placed.origin.x, 1000);
  EXPECT_LE(CGRectGetMaxX(placed), 2000);
  // By its title bar, beside the buttons.
  const CGPoint corner = server().topLeftOf(*window());
  press({corner.x + 120, corner.y + 10});
  moveTo({corner.x + 150, corner.y + 30});
  release();
  open();
  EXPECT_EQ(window()->frame.origin.x, placed.origin.x + 30);
  EXPECT_EQ(window()->frame.origin.y, placed.origin.y - 20);
}

TEST_F(SystemSettingsTest, OnASmallDisplayItsTopLeftIsInView) {
  EXPECT_FALSE(machine.displays.setFrame(2, CGRectMake(1000, 0, 720, 480)));
  moveTo({1500, 500});
  open();
  EXPECT_EQ(window()->frame.origin.x, 1000);
  EXPECT_EQ(CGRectGetMaxY(window()->frame), 480 - Displays::menuBarHeight);
}

TEST_F(SystemSettingsTest, ItsCloseButtonClosesIt) {
  open();
  const CGPoint corner = server().topLeftOf(*window());
  const auto button = window()->closeButton();
  ASSERT_TRUE(button);
  click({corner.x + button->x + 5, corner.y + button->y + 5});
  EXPECT_EQ(window(), nullptr);
}

TEST_F(SystemSettingsTest, TheSwitchGrantsAndRevokes) {
  AXIsProcessTrusted();
  open();
  EXPECT_EQ(valueOf("Orvane"), "0");
  clickOn("Orvane");
  EXPECT_TRUE(AXIsProcessTrusted());
  EXPECT_EQ(valueOf("Orvane"), "1");
  clickOn("Orvane");
  EXPECT_FALSE(AXIsProcessTrusted());
}

TEST_F(SystemSettingsTest, ChangesByOthersAreShown) {
  open();
  EXPECT_EQ(valueOf("Orvane"), "not there");
  machine.permission.setTrusted(true);
  EXPECT_EQ(valueOf("Orvane"), "1");
  machine.locale.preferredLanguages = {"zh-Hans"};
  EXPECT_TRUE(control("移除"));
}

TEST_F(SystemSettingsTest, RemoveRemovesTheSelectedApplication) {
  machine.permission.setTrusted(true);
  open();
  EXPECT_FALSE(control("Remove")->node.isEnabled);
  clickOn("Select Orvane");
  EXPECT_TRUE(control("Select Orvane")->node.isSelected);
  clickOn("Remove");
  EXPECT_EQ(valueOf("Orvane"), "not there");
  EXPECT_FALSE(AXIsProcessTrusted());
  EXPECT_FALSE(control("Remove")->node.isEnabled);
}

TEST_F(SystemSettingsTest, AddAddsAnApplicationAndAllowsIt) {
  open();
  clickOn("Add");
  EXPECT_FALSE(control("Text Macros")->node.isEnabled) << "the sheet disables the page";
  EXPECT_FALSE(control("Open")->node.isEnabled);
  clickOn("Orvane");
  clickOn("Open");
  EXPECT_TRUE(AXIsProcessTrusted());
  EXPECT_EQ(valueOf("Orvane"), "1");
  EXPECT_FALSE(control("Open"));
}

TEST_F(SystemSettingsTest, EscapeCancelsAdd) {
  open();
  clickOn("Add");
  clickOn("Orvane");
  EXPECT_TRUE(key(ui::Key::escape));
  EXPECT_FALSE(control("Open"));
  EXPECT_FALSE(AXIsProcessTrusted());
}

TEST_F(SystemSettingsTest, ADroppedBundleIsAddedAndAllowed) {
  open();
  const appkit::Window source = makeDragSource("file:///Applications/Orvane.app/");
  dragToList();
  EXPECT_TRUE(server().pointer.canDropHere());
  EXPECT_TRUE(settings.state().isDragOver);
  release();
  EXPECT_TRUE(AXIsProcessTrusted());
  EXPECT_EQ(valueOf("Orvane"), "1");
  EXPECT_FALSE(settings.state().isDragOver);
}

TEST_F(SystemSettingsTest, ADropBesideTheListDoesNothing) {
  open();
  const appkit::Window source = makeDragSource("file:///Applications/Orvane.app/");
  dragToList();
  const CGPoint corner = server().topLeftOf(*window());
  moveTo({corner.x + 400, corner.y + 480});
  EXPECT_FALSE(settings.state().isDragOver);
  EXPECT_FALSE(server().pointer.canDropHere());
  release();
  EXPECT_FALSE(AXIsProcessTrusted());
}

TEST_F(SystemSettingsTest, ADroppedFileThatIsNoApplicationIsIgnored) {
  open();
  const appkit::Window source = makeDragSource("file:///Users/a/Letter.txt");
  dragToList();
  release();
  EXPECT_EQ(settings.applications().entries().size(), 2U);
}

TEST_F(SystemSettingsTest, ItOutlivesTheApplication) {
  AXIsProcessTrusted();
  open();
  machine.process.end();
  ASSERT_NE(window(), nullptr);
  clickOn("Orvane");
  EXPECT_TRUE(machine.permission.isTrusted());
  EXPECT_FALSE(window()->content->host().nextFrameWanted())
      << "without a process there is no frame timer";
}

TEST_F(SystemSettingsTest, ItOpensWithoutADisplay) {
  EXPECT_FALSE(machine.displays.detach(1));
  EXPECT_FALSE(machine.displays.detach(2));
  open();
  EXPECT_NE(window(), nullptr);
}

bool isChinese(std::vector<std::string> preferred) {
  return SystemLanguage::of({std::move(preferred), "en_US"}).isChinese();
}

TEST(SystemLanguageTest, TheFirstOfTheTwoLanguagesCounts) {
  EXPECT_TRUE(isChinese({"zh-Hans-CN", "en-US"}));
  EXPECT_FALSE(isChinese({"en-US", "zh-Hans-CN"}));
  EXPECT_TRUE(isChinese({"fr-FR", "zh_TW"}));
}

TEST(SystemLanguageTest, WithoutEitherItIsEnglish) {
  EXPECT_FALSE(isChinese({}));
  EXPECT_FALSE(isChinese({"fr-FR", "zhx"}));
}

}  // namespace
}  // namespace orvane::desk
