// The button styles of the main panel: at rest, pressed, disabled, by day and in the dark.
#include "Orvane/panels/main/PrimaryActionButtonStyle.hpp"
#include "Orvane/panels/main/SecondaryActionButtonStyle.hpp"
#include "Orvane/panels/main/TitleBarIconButtonStyle.hpp"
#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/Image.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "tests/panels/ComponentFixture.hpp"

namespace orvane {
namespace {

class ButtonStylesTest : public ComponentFixture {
 protected:
  void showPrimary() {
    show(ui::Button([] {}, ui::Text("Go")).style(PrimaryActionButtonStyle{ui::Color::red()}),
         {200, 38});
  }
  void showSecondary() {
    show(ui::Button([] {}, ui::Text("Go")).style(SecondaryActionButtonStyle{}), {200, 34});
  }
  void showIcon() {
    show(ui::Button([] {}, ui::Symbol("gearshape").frame(34, 34)).style(TitleBarIconButtonStyle{}),
         {34, 34});
  }
};

TEST_F(ButtonStylesTest, ThePrimaryOneIsFilledWithItsTint) {
  showPrimary();
  EXPECT_TRUE(draws("rounded(0 0 200 38 r8")) << drawing();
  EXPECT_TRUE(draws("text \"Go\" 15/600 rgba(1 1 1 1)")) << drawing();
  EXPECT_TRUE(draws("rgba(1 0.231 0.188 1)")) << drawing();
  EXPECT_FALSE(draws("scale")) << drawing();
  hold({100, 20});
  EXPECT_TRUE(draws("rgba(1 0.231 0.188 0.82)")) << drawing();
  EXPECT_TRUE(draws("scale 0.995 0.995")) << drawing();
}

TEST_F(ButtonStylesTest, TheSecondaryOneIsQuietAndRimmed) {
  showSecondary();
  EXPECT_TRUE(draws("fill rounded(0 0 200 34 r8 continuous) rgba(0 0 0 0.05)")) << drawing();
  EXPECT_TRUE(draws("rgba(0 0 0 0.065) width 0.8\n")) << drawing();
  // The primary colour is black at 0.85, and of that 0.82.
  EXPECT_TRUE(draws("text \"Go\" 13/700 rgba(0 0 0 0.697)")) << drawing();
  appear(true);
  EXPECT_TRUE(draws("rgba(1 1 1 0.085)")) << drawing();
  EXPECT_FALSE(draws("scale")) << drawing();
  appear(false);
  hold({100, 20});
  EXPECT_TRUE(draws("rgba(0 0 0 0.08)")) << drawing();
  EXPECT_TRUE(draws("scale 0.99 0.99")) << drawing();
  appear(true);
  EXPECT_TRUE(draws("rgba(1 1 1 0.14)")) << drawing();
  EXPECT_TRUE(draws("rgba(1 1 1 0.18) width 0.8\n")) << drawing();
}

TEST_F(ButtonStylesTest, TheIconOfTheTitleBarStandsOnAPlate) {
  showIcon();
  EXPECT_TRUE(draws("rgba(1 1 1 0.32)")) << drawing();
  EXPECT_TRUE(draws("rgba(1 1 1 0.5) width 0.7\n")) << drawing();
  EXPECT_TRUE(draws("rgba(0 0 0 0.1)")) << drawing();
  EXPECT_TRUE(draws("rgba(0.16 0.22 0.34 1)")) << drawing();
  appear(true);
  EXPECT_TRUE(draws("rgba(1 1 1 0.14)")) << drawing();
  EXPECT_FALSE(draws("scale")) << drawing();
  appear(false);
  hold({17, 17});
  EXPECT_TRUE(draws("rgba(1 1 1 0.12)")) << drawing();
  EXPECT_TRUE(draws("scale 0.96 0.96")) << drawing();
  appear(true);
  EXPECT_TRUE(draws("rgba(1 1 1 0.075)")) << drawing();
  EXPECT_TRUE(draws("rgba(1 1 1 0.22) width 0.7\n")) << drawing();
  EXPECT_TRUE(draws("rgba(0 0 0 0.22)")) << drawing();
  EXPECT_TRUE(draws("rgba(1 1 1 0.714)")) << drawing();
}

TEST_F(ButtonStylesTest, EachHasAClearRimWhereContrastIsAskedFor) {
  showSecondary();
  appear(false, true);
  EXPECT_TRUE(draws("rgba(0 0 0 0.6) width 0.8\n")) << drawing();
  showIcon();
  appear(true, true);
  EXPECT_TRUE(draws("rgba(1 1 1 0.6) width 0.7\n")) << drawing();
}

}  // namespace
}  // namespace orvane
