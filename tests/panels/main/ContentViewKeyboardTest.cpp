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
  [[nodiscard]] std::vector<std::string> controls(const std::string& surface) {
    std::vector<std::string> labels;
    for (const ui::SemanticsNode& node : elements(surface)) {
      if (node.isControl) {
        labels.push_back(node.label);
      }
    }
    return labels;
  }
};

TEST_F(ContentViewKeyboardTest, TabReachesEveryControlExceptTheWindowButtons) {
  using Names = std::vector<std::string>;
  openMain();
  press("Prevent Dock Pop-Up");
  machine.advance(1);
  const Names main{"Settings",          "Display",           "DELL", "LG", "Pin Dock",
                   "Allow Dock Pop-Up", "Open Dock Settings"};
  EXPECT_EQ(tabOrder(mainPanel), main);
  // A screen reader finds the window's buttons, too, and first.
  Names all{"Close", "Minimise"};
  all.insert(all.end(), main.begin(), main.end());
  EXPECT_EQ(controls(mainPanel), all);

  openSettings();
  const Names settings{"Language", "Temporary Unlock Shortcut", "Privacy Policy",
                       "Accessibility Settings", "Contact Support"};
  EXPECT_EQ(tabOrder(settingsPanel), settings);
  // The hidden button for Command-W is none of them.
  all = {"Close"};
  all.insert(all.end(), settings.begin(), settings.end());
  EXPECT_EQ(controls(settingsPanel), all);
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

}  // namespace
}  // namespace orvane
