// The button styles of the settings panel: at rest, under the pointer, pressed, by day and in the
// dark.
#include "Orvane/panels/settings/SettingsIconButtonStyle.hpp"
#include "Orvane/panels/settings/SettingsSecondaryButtonStyle.hpp"
#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/Image.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "tests/panels/ComponentFixture.hpp"
#include "tests/panels/Motion.hpp"

namespace orvane {
namespace {

class SettingsButtonStylesTest : public ComponentFixture {
 protected:
  void showIcon() {
    show(ui::Button([] {}, ui::Symbol("xmark").font(ui::Font::system(12)).frame(28, 28))
             .style(SettingsIconButtonStyle{}),
         {28, 28});
  }
  void showSecondary() {
    show(ui::Button([] {}, ui::Text("Go").fixedSize()).style(SettingsSecondaryButtonStyle{}),
         {35, 25});
  }
};

struct IconLook {
  const char* name;
  bool isDark;
  bool isPressed;
  const char* symbol;
  const char* plate;
};
void PrintTo(const IconLook& look, std::ostream* out) {
  *out << look.name;
}

class SettingsIconButtonStyleTest : public SettingsButtonStylesTest,
                                    public testing::WithParamInterface<IconLook> {};

TEST_P(SettingsIconButtonStyleTest, IsAFaintPlateThatTurnsBlueWhilePressed) {
  const IconLook& look = GetParam();
  appear(look.isDark);
  showIcon();
  look.isPressed ? hold({14, 14}) : hover({14, 14});
  EXPECT_TRUE(draws(std::string("symbol xmark 12/400 rgba(") + look.symbol + ")")) << drawing();
  EXPECT_TRUE(draws(std::string("fill ellipse(0 0 28 28) rgba(") + look.plate + ")\n"))
      << drawing();
  EXPECT_EQ(draws("scale 0.94 0.94"), look.isPressed) << drawing();
  EXPECT_EQ(draws("scale"), look.isPressed) << drawing();
}

// The secondary colour is black at 0.6 by day and white at 0.7 in the dark, and the plate a tenth
// of that.
INSTANTIATE_TEST_SUITE_P(
    Looks, SettingsIconButtonStyleTest,
    testing::Values(
        IconLook{"by day, at rest", false, false, "0 0 0 0.6", "0 0 0 0.06"},
        IconLook{"in the dark, at rest", true, false, "1 1 1 0.7", "1 1 1 0.07"},
        IconLook{"by day, pressed", false, true, "0.34 0.39 0.95 1", "0.03 0.47 0.98 0.18"},
        IconLook{"in the dark, pressed", true, true, "0.34 0.39 0.95 1", "0.03 0.47 0.98 0.18"}));

TEST_F(SettingsButtonStylesTest, TheIconLooksTheSameUnderThePointer) {
  showIcon();
  const std::string before = drawing();
  hover({14, 14});
  EXPECT_EQ(drawing(), before);
}

TEST_F(SettingsButtonStylesTest, TheIconGivesWayWithinAMoment) {
  showIcon();
  const auto plate = [this] {
    const std::string mark = "transform scale ";
    const std::string text = drawing();
    const std::size_t place = text.find(mark);
    return place == std::string::npos ? 1 : std::stod(text.substr(place + mark.size()));
  };
  test.host->pointerMoved({14, 14});
  test.host->pointerDown({14, 14});
  // At half of its parameter half of the way is done, in a third of the time.
  const motion::Moment moment = motion::easeOut(0.5);
  advance(0.12 * moment.share);
  EXPECT_NEAR(plate(), 1 - 0.06 * moment.progress, 0.0006);
  advance(0.12);
  EXPECT_EQ(plate(), 0.94);
}

struct SecondaryLook {
  const char* name;
  bool isDark;
  bool isPressed;
  const char* fill;
  const char* rim;
  const char* text;
};
void PrintTo(const SecondaryLook& look, std::ostream* out) {
  *out << look.name;
}

class SettingsSecondaryButtonStyleTest : public SettingsButtonStylesTest,
                                         public testing::WithParamInterface<SecondaryLook> {};

TEST_P(SettingsSecondaryButtonStyleTest, IsFilledAndThinlyRimmed) {
  const SecondaryLook& look = GetParam();
  appear(look.isDark);
  showSecondary();
  look.isPressed ? hold({17, 13}) : hover({17, 13});
  const auto label = test.element("Go");
  ASSERT_TRUE(label);
  const std::string shape = "rounded(" + numbers(label->frame) + " r8 continuous) rgba(";
  EXPECT_EQ(label->frame.height, 25);
  EXPECT_EQ(label->frame.width, 2 * 6.5 + 2 * 11);
  EXPECT_TRUE(draws("fill " + shape + look.fill + ")\n")) << drawing();
  EXPECT_TRUE(draws("stroke " + shape + look.rim + ") width 0.7\n")) << drawing();
  EXPECT_TRUE(draws(std::string("text \"Go\" 13/600 rgba(") + look.text + ")")) << drawing();
}

INSTANTIATE_TEST_SUITE_P(
    Looks, SettingsSecondaryButtonStyleTest,
    testing::Values(SecondaryLook{"by day, at rest", false, false, "0.85 0.93 1 0.9",
                                  "0.03 0.47 0.98 0.18", "0 0 0 0.85"},
                    SecondaryLook{"in the dark, at rest", true, false, "1 1 1 0.1", "1 1 1 0.16",
                                  "1 1 1 0.85"},
                    SecondaryLook{"by day, pressed", false, true, "0.03 0.47 0.98 0.22",
                                  "0.03 0.47 0.98 0.18", "0 0 0 0.85"},
                    SecondaryLook{"in the dark, pressed", true, true, "1 1 1 0.14", "1 1 1 0.16",
                                  "1 1 1 0.85"}));

TEST_F(SettingsButtonStylesTest, TheIconHasARimWhereContrastIsAskedFor) {
  showIcon();
  EXPECT_FALSE(draws("rgba(0 0 0 0.6) width")) << drawing();
  appear(false, true);
  EXPECT_TRUE(draws("rgba(0 0 0 0.6) width 0.8\n")) << drawing();
}

TEST_F(SettingsButtonStylesTest, TheSecondaryOneLooksTheSameUnderThePointer) {
  showSecondary();
  const std::string before = drawing();
  hover({17, 13});
  EXPECT_EQ(drawing(), before);
}

TEST_F(SettingsButtonStylesTest, TheSecondaryOneHasAClearRimWhereContrastIsAskedFor) {
  showSecondary();
  appear(false, true);
  EXPECT_TRUE(draws("rgba(0 0 0 0.6) width 0.7\n")) << drawing();
  appear(true, true);
  EXPECT_TRUE(draws("rgba(1 1 1 0.6) width 0.7\n")) << drawing();
}

}  // namespace
}  // namespace orvane
