// The pop-up button and the platform's menu.
#include <gtest/gtest.h>

#include "Orvane/ui/views/Picker.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "tests/ui/TestHost.hpp"

namespace orvane::ui {
namespace {

class PickerTest : public testing::Test {
 protected:
  void SetUp() override {
    test.show([this](const Environment&) {
      return View(Picker{"Language",
                         {"System", "English"},
                         selected,
                         [this](int index) {
                           selected = index;
                           test.host->invalidate();
                         }})
          .width(160);
    });
  }

  TestHost test{{200, 22}};
  int selected = 0;
};

TEST_F(PickerTest, ShowsTheSelectedItem) {
  EXPECT_TRUE(test.draws("text \"System\""));
  EXPECT_FALSE(test.draws("English"));
}

TEST_F(PickerTest, AClickOpensTheMenuAtTheControlAndAChoiceIsReportedOnce) {
  test.click({100, 11});
  ASSERT_EQ(test.menus.size(), 1U);
  EXPECT_EQ(test.menus[0].items, (std::vector<std::string>{"System", "English"}));
  EXPECT_EQ(test.menus[0].selectedIndex, 0);
  EXPECT_EQ(test.menus[0].anchor, (Rect{20, 0, 160, 22}));
  test.menus[0].onChoose(1);
  test.host->layoutIfNeeded();
  EXPECT_EQ(selected, 1);
  EXPECT_TRUE(test.draws("text \"English\""));
}

TEST_F(PickerTest, TheKeyboardAndAPressOpenItToo) {
  test.press(Key::tab);
  test.press(Key::space);
  EXPECT_EQ(test.menus.size(), 1U);
  test.host->press(test.element("Language")->id);
  EXPECT_EQ(test.menus.size(), 2U);
}

TEST_F(PickerTest, DescribesItselfWithLabelAndValue) {
  const auto element = test.element("Language");
  ASSERT_TRUE(element);
  EXPECT_EQ(element->role, Role::popUpButton);
  EXPECT_EQ(element->value, "System");
}

TEST_F(PickerTest, AnIndexOutsideOfTheItemsShowsAnEmptyTitle) {
  selected = 7;
  test.update();
  EXPECT_EQ(test.element("Language")->value, "");
}

}  // namespace
}  // namespace orvane::ui
