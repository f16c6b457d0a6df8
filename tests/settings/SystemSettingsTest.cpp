// The window of System Settings, its Accessibility page with the list of applications, the links
// that open it, and its language.
#include <gtest/gtest.h>

#include "Orvane/platform/Quartz.hpp"
#include "desk/settings/AccessibilityList.hpp"
#include "desk/settings/SystemLanguage.hpp"
#include "tests/settings/SystemSettingsFixture.hpp"
#include "tests/support/MachineFixture.hpp"

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
    pressAt({20, 780});
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
  pressAt({corner.x + 120, corner.y + 10});
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

class AccessibilityListTest : public MachineFixture {
 protected:
  [[nodiscard]] std::string names() const {
    std::string all;
    for (const AccessibilityList::Entry& entry : list.entries()) {
      all += (all.empty() ? "" : ", ") + entry.name + (entry.isAllowed ? " on" : " off");
    }
    return all;
  }

  AccessibilityList list{machine.permission};
};

TEST_F(AccessibilityListTest, RequestingThePermissionListsOrvane) {
  EXPECT_EQ(names(), "Remote Help on, Text Macros off");
  EXPECT_FALSE(AXIsProcessTrusted());
  EXPECT_EQ(names(), "Orvane off, Remote Help on, Text Macros off");
}

TEST_F(AccessibilityListTest, ARemovedApplicationLosesThePermissionAndARequestDoesNotRelistIt) {
  list.add("Orvane");
  list.remove("Orvane");
  EXPECT_FALSE(AXIsProcessTrusted());
  EXPECT_EQ(names(), "Remote Help on, Text Macros off");
  list.setAllowed("Orvane", true);
  EXPECT_FALSE(AXIsProcessTrusted()) << "an unlisted application has no switch";
  list.add("Orvane");
  EXPECT_TRUE(AXIsProcessTrusted());
  EXPECT_EQ(names(), "Orvane on, Remote Help on, Text Macros off");
}

TEST_F(AccessibilityListTest, OtherApplicationsAreIndependent) {
  list.setAllowed("Text Macros", true);
  list.remove("Remote Help");
  EXPECT_EQ(names(), "Text Macros on");
  EXPECT_FALSE(AXIsProcessTrusted());
}

TEST_F(AccessibilityListTest, UnlistedApplicationsCanBeAdded) {
  EXPECT_EQ(list.applicationsNotListed(), (std::vector<std::string>{"Orvane", "Pointer Lens"}));
  list.add("Pointer Lens");
  EXPECT_EQ(list.applicationsNotListed(), std::vector<std::string>{"Orvane"});
}

TEST_F(AccessibilityListTest, TheNameOfAnApplicationIsThatOfItsBundle) {
  EXPECT_EQ(AccessibilityList::applicationOf("file:///Applications/Orvane.app/"), "Orvane");
  EXPECT_EQ(AccessibilityList::applicationOf("file:///A/B.app"), "B");
  EXPECT_EQ(AccessibilityList::applicationOf("file:///A/B.txt"), "");
  EXPECT_EQ(AccessibilityList::applicationOf("https://example.org/B.app"), "");
  EXPECT_EQ(AccessibilityList::applicationOf(""), "");
}

}  // namespace
}  // namespace orvane::desk
