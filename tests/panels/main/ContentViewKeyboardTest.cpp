// The keyboard in both panels.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/panels/PanelFixture.hpp"

namespace orvane {
namespace {

class ContentViewKeyboardTest : public PanelFixture {
 protected:
  [[nodiscard]] std::string focused(const std::string& surface) {
    for (const ui::SemanticsNode& node : elements(surface)) {
      if (node.isFocused) {
        return node.label;
      }
    }
    return "nothing";
  }
  /// The controls that Tab focuses, until it returns to the first.
  [[nodiscard]] std::vector<std::string> tabOrder(const std::string& surface) {
    std::vector<std::string> order;
    constexpr std::size_t limit = 30;
    while (order.size() < limit) {
      key(ui::Key::tab);
      const std::string reached = focused(surface);
      if (!order.empty() && reached == order.front()) {
        break;
      }
      order.push_back(reached);
    }
    return order;
  }
};

TEST_F(ContentViewKeyboardTest, TabReachesEveryControlOfTheMainPanelExceptTheTrafficLights) {
  openMain();
  press("Prevent Dock Pop-Up");
  machine.advance(1);
  const std::vector<std::string> order = tabOrder(mainPanel);
  EXPECT_EQ(order, (std::vector<std::string>{"Settings", "Display", "DELL", "LG", "Pin Dock",
                                             "Allow Dock Pop-Up", "Open Dock Settings"}));
  // A screen reader finds the traffic lights, too, and first.
  std::vector<std::string> controls;
  for (const ui::SemanticsNode& node : elements(mainPanel)) {
    if (node.isControl) {
      controls.push_back(node.label);
    }
  }
  std::vector<std::string> all{"Close", "Minimise"};
  all.insert(all.end(), order.begin(), order.end());
  EXPECT_EQ(controls, all);
}

TEST_F(ContentViewKeyboardTest, TabReachesEveryControlOfTheSettingsExceptTheCloseButton) {
  openSettings();
  EXPECT_EQ(tabOrder(settingsPanel),
            (std::vector<std::string>{"Language", "Temporary Unlock Shortcut", "Privacy Policy",
                                      "Accessibility Settings", "Contact Support"}));
}

TEST_F(ContentViewKeyboardTest, SpaceOnACardSelectsItsDisplay) {
  openMain();
  for (int times = 0; times < 3; ++times) {
    key(ui::Key::tab);
  }
  ASSERT_EQ(focused(mainPanel), "DELL");
  key(ui::Key::space);
  EXPECT_EQ(model().selectedDisplayID().value(), "DISPLAY-2");
}

TEST_F(ContentViewKeyboardTest, TheSelectedAndTheFocusedCardScrollIntoView) {
  for (std::uint32_t number = 4; number <= 8; ++number) {
    attach(number, CGRectMake(1440.0 + 800 * number, 0, 800, 600), std::to_string(number), false);
  }
  model().refreshDisplays();
  model().selectDisplay("DISPLAY-8");
  openMain();
  const ui::Rect row = withRole(ui::Role::scrollArea, mainPanel).front().frame;
  // The selected card is slightly larger; the row keeps its margin around it.
  EXPECT_NEAR(frameOf("8").right(), row.right() - 19, 2);
  model().selectDisplay("DISPLAY-2");
  machine.advance(0.05);
  EXPECT_LT(frameOf("DELL").x, row.x);
  machine.advance(1);
  EXPECT_NEAR(frameOf("DELL").x, row.x + 19, 2);
  for (int times = 0; times < 5; ++times) {
    key(ui::Key::tab);
  }
  ASSERT_EQ(focused(mainPanel), "4");
  EXPECT_NEAR(frameOf("4").right(), row.right() - 19, 2);
}

TEST_F(ContentViewKeyboardTest, EscapeClosesTheSettingsAndOnlyThem) {
  openSettings();
  key(ui::Key::escape);
  EXPECT_FALSE(isOpen(settingsPanel));
  EXPECT_TRUE(isOpen(mainPanel));
  key(ui::Key::escape);
  EXPECT_TRUE(isOpen(mainPanel));
}

TEST_F(ContentViewKeyboardTest, CommandWClosesTheFrontPanel) {
  openSettings();
  command("w");
  EXPECT_FALSE(isOpen(settingsPanel));
  ASSERT_TRUE(isOpen(mainPanel));
  command("w");
  EXPECT_FALSE(isOpen(mainPanel));
  EXPECT_TRUE(application.isRunning());
}

TEST_F(ContentViewKeyboardTest, CommandMMinimisesTheMainPanel) {
  openMain();
  command("m");
  EXPECT_FALSE(isOpen(mainPanel));
  application.reopen();
  EXPECT_TRUE(isOpen(mainPanel));
}

TEST_F(ContentViewKeyboardTest, TheHiddenCloseButtonIsNoElement) {
  openSettings();
  int closes = 0;
  for (const ui::SemanticsNode& node : elements(settingsPanel)) {
    closes += node.label == "Close" ? 1 : 0;
    EXPECT_FALSE(node.isControl && node.label.empty());
  }
  EXPECT_EQ(closes, 1);
}

}  // namespace
}  // namespace orvane
