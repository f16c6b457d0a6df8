// The window of the System Settings: which link opens which page, and what the page does.
#include <optional>
#include <sstream>
#include <string>

#include "Orvane/platform/appkit/Workspace.hpp"
#include "desk/canvas/SymbolLibrary.hpp"
#include "desk/settings/SystemSettings.hpp"
#include "tests/support/RecordingCanvas.hpp"
#include "tests/windows/WindowFixture.hpp"

namespace orvane::desk {
namespace {

using appkit::Workspace;

constexpr const char* accessibilityLink =
    "x-apple.systempreferences:com.apple.settings.PrivacySecurity.extension?Privacy_Accessibility";

class SystemSettingsTest : public WindowFixture {
 protected:
  SystemSettingsTest() { moveTo({500, 400}); }

  SystemSettings& settings() { return settings_; }
  std::shared_ptr<DeskWindow> window() { return HandFixture::window("system"); }
  void open(const char* link = accessibilityLink) {
    Workspace::openURL(link);
    machine.runDue();
  }
  /// The control of that name, none when there is none.
  std::optional<SurfaceControl> control(const std::string& label) {
    return hand.control(label, "system");
  }
  void clickOn(const std::string& label) {
    const auto found = control(label);
    ASSERT_TRUE(found) << label;
    click({CGRectGetMidX(found->frame), CGRectGetMidY(found->frame)});
  }
  std::string valueOf(const std::string& label) {
    const auto found = control(label);
    return found ? found->node.value : "not there";
  }
  /// No text is cut, and there is a drawing of each symbol.
  void expectDrawnWhole() {
    window()->content->update();
    ui::RecordingCanvas canvas;
    window()->content->host().paint(canvas, {0, 0, SystemSettings::width, SystemSettings::height});
    for (const std::string& line : canvas.lines()) {
      EXPECT_EQ(line.find("…"), std::string::npos) << line;
      std::istringstream words(line);
      std::string kind;
      std::string name;
      words >> kind >> name;
      EXPECT_TRUE(kind != "symbol" || SymbolLibrary::contains(name)) << line;
    }
    EXPECT_GT(canvas.lines().size(), 20U);
  }
  /// A window of the application at the left, out of which a file can be dragged.
  appkit::Window makeDragSource(const std::string& fileUrl) {
    appkit::Window source = makeWindow({0, 0}, "source");
    source.setContentView(hosting(ui::Rectangle().dragSource([fileUrl] {
      return std::optional(ui::DragItem{fileUrl, "icon"});
    })));
    source.orderFrontRegardless();
    machine.runDue();
    return source;
  }
  /// Drags the file from there to a place on the list.
  void dragToList() {
    press({20, 780});
    moveTo({30, 780});
    const CGPoint corner = server().topLeftOf(*window());
    const ui::Rect list = settings().listFrame().value_or(ui::Rect{});
    moveTo({corner.x + list.x + 100, corner.y + list.y + 20});
  }

 private:
  SystemSettings& settings_ = SystemSettings::installOn(server());
};

TEST_F(SystemSettingsTest, EachLinkOpensItsPage) {
  open("x-apple.systempreferences:com.apple.Desktop-Settings.extension");
  EXPECT_EQ(settings().state().page, SettingsPage::desktopAndDock);
  open("x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility");
  EXPECT_EQ(settings().state().page, SettingsPage::accessibility);
  open("x-apple.systempreferences:com.apple.preference.dock");
  EXPECT_EQ(settings().state().page, SettingsPage::desktopAndDock);
  open("x-apple.systempreferences:com.apple.preference.security");
  EXPECT_EQ(settings().state().page, SettingsPage::privacy);
  open();
  EXPECT_EQ(settings().state().page, SettingsPage::accessibility);
}

TEST_F(SystemSettingsTest, OtherAndRefusedLinksOpenNothing) {
  open("https://example.org/");
  machine.links.refuse("x-apple");
  open();
  EXPECT_EQ(window(), nullptr);
}

TEST_F(SystemSettingsTest, TheApplicationItselfOpensOnThePageItShowedLast) {
  Workspace::openFile("/System/Applications/System Settings.app");
  ASSERT_NE(window(), nullptr);
  EXPECT_EQ(settings().state().page, SettingsPage::general);
  open();
  server().close(window());
  EXPECT_EQ(window(), nullptr);
  Workspace::openFile("/System/Applications/System Settings.app");
  EXPECT_EQ(settings().state().page, SettingsPage::accessibility);
}

TEST_F(SystemSettingsTest, OpeningTakesTheActivityFromTheApplicationAndTheKeysWithIt) {
  appkit::Window own = makeWindow({0, 0}, "own");
  own.makeKeyAndOrderFront();
  appkit::Application::activateIgnoringOtherApps();
  EXPECT_TRUE(own.isKeyWindow());
  open();
  EXPECT_FALSE(own.isKeyWindow());
  EXPECT_EQ(server().focus.keyReceiver(), window());
  EXPECT_EQ(window()->owner, WindowOwner::system);
}

TEST_F(SystemSettingsTest, ItOpensOnTheDisplayWithThePointerAndStaysWhereItIsPut) {
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

TEST_F(SystemSettingsTest, WhatOthersChangeIsShown) {
  open();
  EXPECT_EQ(valueOf("Orvane"), "not there");
  machine.permission.setTrusted(true);
  EXPECT_EQ(valueOf("Orvane"), "1");
  machine.locale.preferredLanguages = {"zh-Hans"};
  EXPECT_TRUE(control("隐私与安全性"));
}

TEST_F(SystemSettingsTest, TheMinusTakesTheSelectedApplicationOut) {
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

TEST_F(SystemSettingsTest, ThePlusAddsAnApplicationAndAllowsIt) {
  open();
  clickOn("Add");
  EXPECT_FALSE(control("Text Macros")->node.isEnabled) << "the sheet keeps the page back";
  EXPECT_FALSE(control("Open")->node.isEnabled);
  clickOn("Orvane");
  clickOn("Open");
  EXPECT_TRUE(AXIsProcessTrusted());
  EXPECT_EQ(valueOf("Orvane"), "1");
  EXPECT_FALSE(control("Open"));
}

TEST_F(SystemSettingsTest, ThePlusIsCancelledByEscape) {
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
  EXPECT_TRUE(settings().state().isDragOver);
  release();
  EXPECT_TRUE(AXIsProcessTrusted());
  EXPECT_EQ(valueOf("Orvane"), "1");
  EXPECT_FALSE(settings().state().isDragOver);
}

TEST_F(SystemSettingsTest, ADropBesideTheListDoesNothing) {
  open();
  const appkit::Window source = makeDragSource("file:///Applications/Orvane.app/");
  dragToList();
  const CGPoint corner = server().topLeftOf(*window());
  moveTo({corner.x + 400, corner.y + 480});
  EXPECT_FALSE(settings().state().isDragOver);
  EXPECT_FALSE(server().pointer.canDropHere());
  release();
  EXPECT_FALSE(AXIsProcessTrusted());
}

TEST_F(SystemSettingsTest, ADroppedFileThatIsNoApplicationIsIgnored) {
  open();
  const appkit::Window source = makeDragSource("file:///Users/a/Letter.txt");
  dragToList();
  release();
  EXPECT_EQ(settings().applications().entries().size(), 2U);
}

TEST_F(SystemSettingsTest, OnlyTheAccessibilityPageTakesDrops) {
  open("x-apple.systempreferences:com.apple.preference.dock");
  EXPECT_FALSE(settings().listFrame());
  open();
  EXPECT_TRUE(settings().listFrame());
  clickOn("Add");
  EXPECT_FALSE(settings().listFrame());
}

TEST_F(SystemSettingsTest, TheDockPageMovesAndHidesTheDock) {
  open("x-apple.systempreferences:com.apple.preference.dock");
  EXPECT_TRUE(control("Bottom")->node.isSelected);
  clickOn("Left");
  EXPECT_EQ(machine.dock.edge(), DockEdge::left);
  EXPECT_TRUE(control("Left")->node.isSelected);
  clickOn("Automatically hide and show the Dock");
  EXPECT_TRUE(machine.dock.autoHides());
  EXPECT_EQ(valueOf("Automatically hide and show the Dock"), "1");
}

TEST_F(SystemSettingsTest, TheSidebarAndTheBackButtonLeadThroughThePages) {
  open();
  EXPECT_TRUE(control("Privacy & Security")->node.isSelected);
  clickOn("Back");
  EXPECT_EQ(settings().state().page, SettingsPage::privacy);
  clickOn("Accessibility");
  EXPECT_EQ(settings().state().page, SettingsPage::accessibility);
  for (const auto& [label, page] :
       {std::pair("General", SettingsPage::general), std::pair("Displays", SettingsPage::displays),
        std::pair("Desktop & Dock", SettingsPage::desktopAndDock)}) {
    clickOn(label);
    EXPECT_EQ(settings().state().page, page);
    EXPECT_TRUE(control(label)->node.isSelected);
  }
}

TEST_F(SystemSettingsTest, EveryPageIsDrawnWholeInBothLanguages) {
  machine.permission.setTrusted(true);
  for (const char* const language : {"en", "zh"}) {
    machine.locale.preferredLanguages = {language};
    for (const SettingsPage page :
         {SettingsPage::general, SettingsPage::displays, SettingsPage::desktopAndDock,
          SettingsPage::privacy, SettingsPage::accessibility}) {
      settings().open(page);
      expectDrawnWhole();
    }
    settings().beginChoosing();
    expectDrawnWhole();
    settings().endChoosing(false);
  }
}

TEST_F(SystemSettingsTest, ItOutlivesTheApplication) {
  AXIsProcessTrusted();
  open();
  machine.process.end();
  ASSERT_NE(window(), nullptr);
  clickOn("Orvane");
  EXPECT_TRUE(machine.permission.isTrusted());
  EXPECT_FALSE(window()->content->host().nextFrameWanted()) << "nobody would bring the frames";
}

TEST_F(SystemSettingsTest, WithoutADisplayItOpensAllTheSame) {
  EXPECT_FALSE(machine.displays.detach(1));
  EXPECT_FALSE(machine.displays.detach(2));
  open();
  EXPECT_NE(window(), nullptr);
}

}  // namespace
}  // namespace orvane::desk
