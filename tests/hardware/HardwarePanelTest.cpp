// The hardware panel without its window, and its values.
#include <set>

#include "desk/hand/FindControl.hpp"
#include "desk/windows/WindowServer.hpp"
#include "showroom/desktop/StandardDisplays.hpp"
#include "showroom/hardware/HardwareContent.hpp"
#include "showroom/hardware/HardwarePanelHost.hpp"
#include "tests/canvas/PixelFixture.hpp"
#include "tests/support/RecordingCanvas.hpp"
#include "tests/window/SessionFixture.hpp"

namespace orvane::showroom {
namespace {

class HardwarePanelTest : public SessionFixture {
 protected:
  HardwarePanelTest() {
    panel.setSize({HardwarePanel::width, 800});
    show();
  }

  void show() { panel.show(content()); }
  [[nodiscard]] std::vector<ui::SemanticsNode> controls() const {
    return desk::findControls(panel.host().semantics());
  }
  [[nodiscard]] std::optional<ui::SemanticsNode> control(const std::string& label) const {
    return desk::findControl(panel.host().semantics(), label);
  }
  /// A click in the middle of the control.
  void click(const std::string& label) {
    const auto found = control(label);
    ASSERT_TRUE(found) << label;
    panel.pointerDown(found->frame.center());
    panel.pointerUp(found->frame.center());
    show();
  }
  [[nodiscard]] std::string drawing() const {
    ui::RecordingCanvas canvas;
    panel.host().paint(canvas, {0, 0, panel.host().size().width, panel.host().size().height});
    return canvas.text();
  }

  [[nodiscard]] HardwareContent content() const { return session.hardwareContent(false); }
  [[nodiscard]] std::string counter(const std::string& label) const {
    for (const HardwareCounter& candidate : content().counters) {
      if (candidate.label == label) {
        return candidate.value;
      }
    }
    ADD_FAILURE() << "no counter " << label;
    return {};
  }

  desk::Machine& machine = session.machine();
  HardwarePanelHost panel{session.hardware()};
};

TEST_F(HardwarePanelTest, EveryControlHasAUniqueLabel) {
  attachNextStandardDisplay(machine);
  show();
  std::set<std::string> labels;
  for (const ui::SemanticsNode& found : controls()) {
    EXPECT_FALSE(found.label.empty());
    EXPECT_TRUE(labels.insert(found.label).second) << found.label;
    EXPECT_FALSE(found.frame.isEmpty()) << found.label;
  }
  EXPECT_EQ(labels.size(), 25U);
}

TEST_F(HardwarePanelTest, DisplaysAreAttachedDetachedAndMadeMain) {
  click("Attach a display");
  EXPECT_EQ(machine.displays.count(), 3U);
  click("Make Right Display main");
  EXPECT_EQ(machine.displays.main()->number, 2U);
  EXPECT_FALSE(control("Make Right Display main"));
  click("Detach Built-in Display");
  EXPECT_EQ(machine.displays.find(1), nullptr);
  EXPECT_FALSE(control("Detach Built-in Display"));
}

TEST_F(HardwarePanelTest, AtMostFourDisplaysCanBeAttached) {
  click("Attach a display");
  click("Attach a display");
  EXPECT_FALSE(control("Attach a display")->isEnabled);
}

TEST_F(HardwarePanelTest, TheLastDisplayCanBeDetachedAndOneAttachedAgain) {
  click("Detach Built-in Display");
  click("Detach Right Display");
  EXPECT_TRUE(machine.displays.isEmpty());
  EXPECT_NE(drawing().find("No display is attached"), std::string::npos);
  click("Attach a display");
  EXPECT_EQ(machine.displays.count(), 1U);
}

TEST_F(HardwarePanelTest, TheDockGroupSetsThePreferences) {
  click("Edge: Left");
  EXPECT_EQ(machine.dock.edge(), desk::DockEdge::left);
  EXPECT_TRUE(control("Edge: Left")->isSelected);
  EXPECT_FALSE(control("Edge: Bottom")->isSelected);
  click("Edge: Right");
  EXPECT_EQ(machine.dock.edge(), desk::DockEdge::right);
  click("Hide the Dock automatically");
  EXPECT_TRUE(machine.dock.autoHides());
  EXPECT_EQ(control("Hide the Dock automatically")->value, "1");
}

TEST_F(HardwarePanelTest, TheMacGroupSetsTheSystem) {
  EXPECT_EQ(control("Accessibility permission")->value, "1");
  click("Accessibility permission");
  EXPECT_FALSE(machine.permission.isTrusted());
  click("Appearance: Dark");
  EXPECT_TRUE(machine.appearance.isDark);
  click("Wallpaper: Busy");
  EXPECT_EQ(machine.appearance.wallpaper, desk::Appearance::Wallpaper::busy);
  click("Wallpaper: Black");
  EXPECT_EQ(machine.appearance.wallpaper, desk::Appearance::Wallpaper::black);
  click("Language: 中文");
  EXPECT_EQ(machine.locale.preferredLanguages, std::vector<std::string>{"zh-Hans-CN"});
  EXPECT_TRUE(control("Language: 中文")->isSelected);
}

TEST_F(HardwarePanelTest, TheLanguagesDetermineTheApplicationsLanguage) {
  const std::vector<std::string> expected{"Quit", "退出", "退出", "Quit"};
  ASSERT_EQ(hardwareLanguages().size(), expected.size());
  for (std::size_t index = 0; index < expected.size(); ++index) {
    click(std::string("Language: ") + hardwareLanguages()[index].title);
    EXPECT_EQ(content().languages, index);
    desk::WindowServer& server = desk::WindowServer::current();
    ASSERT_TRUE(server.menus.openStatusMenu(0));
    EXPECT_EQ(server.menus.menu()->items.back().title, expected[index]);
    server.menus.close();
  }
  machine.locale.preferredLanguages = {"it-IT"};
  EXPECT_EQ(content().languages, std::nullopt);
}

TEST_F(HardwarePanelTest, TheApplicationIsLaunchedAndEnded) {
  click("Open Orvane again");
  EXPECT_TRUE(session.application().isRunning());
  click("Crash Orvane");
  EXPECT_FALSE(session.application().isRunning());
  EXPECT_FALSE(control("Quit Orvane"));
  click("Launch Orvane");
  EXPECT_TRUE(session.application().isRunning());
  click("Quit Orvane");
  EXPECT_FALSE(session.application().isRunning());
}

TEST_F(HardwarePanelTest, CanBeOperatedWithTheKeyboard) {
  for (int time = 0; time < 100 && panel.host().focusedId() != control("Edge: Left")->id; ++time) {
    ASSERT_TRUE(panel.keyDown({.key = ui::Key::tab}));
  }
  ASSERT_EQ(panel.host().focusedId(), control("Edge: Left")->id);
  EXPECT_TRUE(panel.keyDown({.key = ui::Key::space}));
  EXPECT_EQ(machine.dock.edge(), desk::DockEdge::left);
}

TEST_F(HardwarePanelTest, TruncatesNoTextAndFitsIntoTheUsualWindowInAnyState) {
  attachNextStandardDisplay(machine);
  attachNextStandardDisplay(machine);
  for (const HardwareLanguages& languages : hardwareLanguages()) {
    machine.locale = languages.locale;
    pinOrUnpin();
    show();
    EXPECT_EQ(drawing().find("\u2026"), std::string::npos) << drawing();
    EXPECT_LE(panel.host().sizeThatFits({HardwarePanel::width, std::nullopt}).height, 800);
  }
}

TEST_F(HardwarePanelTest, ScrollsWhenItIsTooLow) {
  panel.setSize({HardwarePanel::width, 400});
  show();
  panel.scrollBy(-50);
  EXPECT_DOUBLE_EQ(panel.scrolled(), 0);
  panel.scrollBy(150);
  EXPECT_DOUBLE_EQ(panel.scrolled(), 150);
  const ui::Point middle = control("Accessibility permission")->frame.center();
  panel.pointerDown({middle.x, middle.y - 150});
  panel.pointerUp({middle.x, middle.y - 150});
  EXPECT_FALSE(machine.permission.isTrusted());
  panel.scrollBy(10000);
  EXPECT_DOUBLE_EQ(panel.scrolled(), panel.host().size().height - 400);
  panel.setSize({HardwarePanel::width, 2000});
  show();
  EXPECT_DOUBLE_EQ(panel.scrolled(), 0);
}

TEST_F(HardwarePanelTest, ScrollsToTheFocusedControl) {
  panel.setSize({HardwarePanel::width, 300});
  show();
  const std::size_t count = controls().size();
  for (std::size_t time = 0; time < 2 * count; ++time) {
    panel.keyDown({.key = ui::Key::tab});
    for (const ui::SemanticsNode& found : controls()) {
      if (found.isFocused) {
        EXPECT_GE(found.frame.y, panel.scrolled()) << found.label;
        EXPECT_LE(found.frame.bottom(), panel.scrolled() + 300) << found.label;
      }
    }
  }
}

TEST_F(HardwarePanelTest, AnEqualContentRequestsNoRedraw) {
  const std::int64_t before = panel.changeCount();
  show();
  session.advance(desk::Clock::nanosecondsPerSecond);
  show();
  EXPECT_EQ(panel.changeCount(), before);
  EXPECT_FALSE(panel.host().nextFrameWanted());
}

class HardwarePanelPictureTest : public desk::PixelFixture {};

TEST_F(HardwarePanelPictureTest, FillsItsFrameAndFollowsTheAppearance) {
  DeskSession session{2};
  HardwarePanelHost panel{session.hardware()};
  panel.setSize({320, 800});
  for (const bool isDark : {false, true}) {
    session.machine().appearance.isDark = isDark;
    panel.show(session.hardwareContent(false));
    begin(340, 800);
    panel.paint(*canvas, {20, 0});
    for (int y = 0; y < 800; y += 9) {
      ASSERT_EQ(at(25, y).alpha, 255);
      ASSERT_EQ(at(339, y).alpha, 255);
      ASSERT_EQ(at(10, y).alpha, 0);
    }
    EXPECT_EQ(at(25, 790).red > 128, !isDark);
  }
}

TEST_F(HardwarePanelTest, ListsTheDisplaysWithTheirSizes) {
  const std::vector<HardwareDisplay> displays = content().displays;
  ASSERT_EQ(displays.size(), 2U);
  EXPECT_EQ(displays[0].name, "Built-in Display");
  EXPECT_EQ(displays[0].size, "1024 × 640");
  EXPECT_TRUE(displays[0].isMain);
  EXPECT_EQ(displays[1].number, 2U);
  EXPECT_FALSE(displays[1].isMain);
}

TEST_F(HardwarePanelTest, FollowsTheDockAndTheCounters) {
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

TEST_F(HardwarePanelTest, ShowsTheStatusAndTheLastMessage) {
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
