// Focus, its ring, shortcuts and keyboard activation.
#include <gtest/gtest.h>

#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "tests/ui/TestHost.hpp"

namespace orvane::ui {
namespace {

class KeyboardFocusTest : public testing::Test {
 protected:
  View button(const std::string& title) {
    return Button(title, [this, title] { log += title; });
  }
  std::string focused() {
    for (const char* const label : {"a", "b", "c"}) {
      const auto element = test.element(label);
      if (element && element->isFocused) {
        return label;
      }
    }
    return "";
  }

  TestHost test{{300, 100}};
  std::string log;
};

TEST_F(KeyboardFocusTest, TabWalksInReadingOrderAndRoundAgain) {
  test.show(VStack(8, {HStack(8, {button("a"), button("b")}), button("c")}));
  EXPECT_EQ(focused(), "");
  std::string walk;
  for (int step = 0; step < 4; ++step) {
    EXPECT_TRUE(test.press(Key::tab));
    walk += focused();
  }
  EXPECT_EQ(walk, "abca");
  test.press(Key::tab, true);
  EXPECT_EQ(focused(), "c");
  test.update();
  EXPECT_EQ(focused(), "c");
}

TEST_F(KeyboardFocusTest, ShiftTabBeginsAtTheEnd) {
  test.show(HStack(8, {button("a"), button("b")}));
  test.press(Key::tab, true);
  EXPECT_EQ(focused(), "b");
}

TEST_F(KeyboardFocusTest, DisabledAndInvisibleControlsAreSkipped) {
  test.show(HStack(8, {button("a").disabled(true), button("b").opacity(0), button("c")}));
  test.press(Key::tab);
  EXPECT_EQ(focused(), "c");
}

TEST_F(KeyboardFocusTest, TabPassesOverWhatIsOutOfItsOrder) {
  test.show(HStack(8, {Button("a", [this] { log += "a"; })
                           .outOfTabOrder()
                           .keyboardShortcut(KeyboardShortcut::command("w")),
                       button("b")}));
  test.press(Key::tab);
  EXPECT_EQ(focused(), "b");
  test.press(Key::tab);
  EXPECT_EQ(focused(), "b");
  const auto element = test.element("a");
  EXPECT_EQ(element->role, Role::button);
  EXPECT_FALSE(element->isFocusable);
  EXPECT_FALSE(test.host->focus(element->id));
  EXPECT_TRUE(test.host->keyDown({Key::character, {false, false, false, true}, "w"}));
  EXPECT_TRUE(test.host->press(element->id));
  EXPECT_EQ(log, "aa");
}

TEST_F(KeyboardFocusTest, WithoutControlsTabIsNotHandled) {
  test.show(Text("a"));
  EXPECT_FALSE(test.press(Key::tab));
}

TEST_F(KeyboardFocusTest, SpaceActivatesTheFocus) {
  test.show(HStack(8, {button("a"), button("b")}));
  EXPECT_FALSE(test.press(Key::space));
  test.press(Key::tab);
  test.press(Key::tab);
  EXPECT_TRUE(test.press(Key::space));
  EXPECT_EQ(log, "b");
}

TEST_F(KeyboardFocusTest, ReturnAndEscapeReachTheirButtonsWhateverHasTheFocus) {
  test.show(
      HStack(8, {button("a").keyboardShortcut(KeyboardShortcut::cancelAction()),
                 button("b").keyboardShortcut(KeyboardShortcut::defaultAction()), button("c")}));
  test.press(Key::tab);
  EXPECT_TRUE(test.press(Key::enter));
  EXPECT_EQ(log, "b");
  EXPECT_TRUE(test.press(Key::escape));
  EXPECT_EQ(log, "ba");
}

TEST_F(KeyboardFocusTest, WithoutADefaultButtonReturnActivatesTheFocus) {
  test.show(HStack(8, {button("a"), button("b")}));
  EXPECT_FALSE(test.press(Key::enter));
  test.press(Key::tab);
  EXPECT_TRUE(test.press(Key::enter));
  EXPECT_EQ(log, "a");
  EXPECT_FALSE(test.press(Key::escape));
}

TEST_F(KeyboardFocusTest, ADisabledDefaultButtonDoesNotAnswer) {
  test.show(button("a").keyboardShortcut(KeyboardShortcut::defaultAction()).disabled(true));
  EXPECT_FALSE(test.press(Key::enter));
  EXPECT_EQ(log, "");
}

TEST_F(KeyboardFocusTest, AShortcutNeedsItsCharacterAndItsModifiers) {
  test.show(button("a").keyboardShortcut(KeyboardShortcut::command("w")));
  EXPECT_FALSE(test.host->keyDown({Key::character, {}, "w"}));
  EXPECT_FALSE(test.host->keyDown({Key::character, {false, false, false, true}, "q"}));
  EXPECT_TRUE(test.host->keyDown({Key::character, {false, false, false, true}, "w"}));
  EXPECT_EQ(log, "a");
}

TEST_F(KeyboardFocusTest, TheRingIsSeenOnlyWhenTheFocusCameByTheKeyboard) {
  test.show(
      Button([] {}, Rectangle().frame(40, 20)).style(PlainButtonStyle{}).accessibilityLabel("a"));
  const auto ring = [this] {
    const std::string drawing = test.drawing();
    const std::size_t place = drawing.find("stroke rounded(128 38 44 24 r8 continuous) ");
    return place == std::string::npos ? "" : drawing.substr(place + 43);
  };
  EXPECT_EQ(ring(), "");
  EXPECT_TRUE(test.host->focus(test.element("a")->id));
  EXPECT_EQ(ring(), "");
  test.host->focus(0);
  test.host->takeDirtyRects();
  test.press(Key::tab);
  EXPECT_EQ(ring(), "rgba(0 0.478 1 0.6) width 3\nrestore\n");
  EXPECT_EQ(test.host->takeDirtyRects(), (std::vector<Rect>{{124, 34, 52, 32}}));
  // 4.5 to 1 on luminances of 0.8 and 0.08.
  test.host->setAppearance({false, {}, true, false});
  EXPECT_EQ(ring(), "rgba(0 0.394 0.824 1) width 3\nrestore\n");
  test.host->setAppearance({true, {}, true, false});
  EXPECT_EQ(ring(), "rgba(0.557 0.778 1 1) width 3\nrestore\n");
}

TEST_F(KeyboardFocusTest, TheFocusEndsWithItsNode) {
  bool isShown = true;
  test.show([&](const Environment&) -> View {
    return HStack(8, {when(isShown, [&] { return button("a"); }), button("b")});
  });
  test.press(Key::tab);
  EXPECT_NE(test.host->focusedId(), 0U);
  isShown = false;
  test.update();
  EXPECT_EQ(test.host->focusedId(), 0U);
  EXPECT_FALSE(test.press(Key::space));
  EXPECT_EQ(log, "");
}

TEST_F(KeyboardFocusTest, AKeyMayDestroyTheHost) {
  test.show(Button("a", [this] {
              test.host.reset();
            }).keyboardShortcut(KeyboardShortcut::cancelAction()));
  EXPECT_TRUE(test.press(Key::escape));
  EXPECT_FALSE(test.host);
}

}  // namespace
}  // namespace orvane::ui
