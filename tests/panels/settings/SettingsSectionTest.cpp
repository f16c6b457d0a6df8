// One card of the settings panel: at rest and under the pointer, by day and in the dark.
#include "Orvane/panels/settings/SettingsSection.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "tests/panels/ComponentFixture.hpp"
#include "tests/panels/Motion.hpp"

namespace orvane {
namespace {

class SettingsSectionTest : public ComponentFixture {
 protected:
  void showCard() {
    const ui::Color tint = ui::Color::rgb(0.2, 0.4, 0.6);
    show(SettingsSection{.systemImage = "globe",
                         .title = "Title",
                         .tint = tint,
                         .backgroundTint = tint.opacity(0.05),
                         .content = ui::Text("Content")},
         {400, 120});
  }
  /// How many lines of the drawing have the part in them.
  [[nodiscard]] int count(const std::string& part) const {
    const std::string text = drawing();
    int found = 0;
    for (std::size_t place = text.find(part); place != std::string::npos;
         place = text.find(part, place + 1)) {
      ++found;
    }
    return found;
  }
  /// How far the card has grown, from 0 to 1.
  [[nodiscard]] double growth() const {
    const auto content = test.element("Content");
    return content ? (content->frame.width / restingWidth - 1) / 0.006 : -1;
  }

  /// Seven characters of the synthetic font at 13 points.
  static constexpr double restingWidth = 7 * 6.5;
};

struct Look {
  const char* name;
  bool isDark;
  bool isHovered;
  const char* tintShadow;
  const char* blackShadow;
  const char* rim;
  const char* border;
};
void PrintTo(const Look& look, std::ostream* out) {
  *out << look.name;
}

class SettingsSectionLookTest : public SettingsSectionTest,
                                public testing::WithParamInterface<Look> {};

TEST_P(SettingsSectionLookTest, HasItsShadowsItsRimAndItsBorder) {
  const Look& look = GetParam();
  appear(look.isDark);
  showCard();
  if (look.isHovered) {
    hover({200, 60});
  }
  const std::string card = " r10 continuous) ";
  EXPECT_EQ(count("shadow "), 2) << drawing();
  EXPECT_EQ(count(card + "rgba(0.2 0.4 0.6 " + look.tintShadow), 1) << drawing();
  EXPECT_EQ(count(card + "rgba(0 0 0 " + look.blackShadow), 1) << drawing();
  EXPECT_EQ(count(card + "rgba(1 1 1 " + look.rim + ") width 1\n"), 1) << drawing();
  EXPECT_EQ(count(card + "rgba(0.2 0.4 0.6 0.05)\n"), 1) << drawing();
  // Half of its width within the card's edge.
  EXPECT_EQ(count(" 399.2 "), 1) << drawing();
  EXPECT_EQ(
      count(std::string(" r9.6 continuous) rgba(0.2 0.4 0.6 ") + look.border + ") width 0.8\n"), 1)
      << drawing();
  EXPECT_EQ(count("transform scale 1.006 1.006 "), look.isHovered ? 1 : 0) << drawing();
  EXPECT_EQ(count("transform scale 1.06 1.06 "), look.isHovered ? 1 : 0) << drawing();
  EXPECT_EQ(count("transform "), look.isHovered ? 2 : 0) << drawing();
}

INSTANTIATE_TEST_SUITE_P(
    Looks, SettingsSectionLookTest,
    testing::Values(Look{"by day, at rest", false, false, "0.06) radius 8 offset 0 3\n",
                         "0.025) radius 8 offset 0 3\n", "0.38", "0.14"},
                    Look{"by day, hovered", false, true, "0.12) radius 12 offset 0 5\n",
                         "0.045) radius 12 offset 0 5\n", "0.38", "0.26"},
                    Look{"in the dark, at rest", true, false, "0.08) radius 8 offset 0 3\n",
                         "0.12) radius 8 offset 0 3\n", "0.22", "0.24"},
                    Look{"in the dark, hovered", true, true, "0.16) radius 12 offset 0 5\n",
                         "0.18) radius 12 offset 0 5\n", "0.22", "0.38"}));

TEST_F(SettingsSectionTest, HasItsHeaderTwelvePointsAboveItsContentAndFillsTheWidth) {
  showCard();
  const auto title = test.element("Title");
  const auto content = test.element("Content");
  ASSERT_TRUE(title);
  ASSERT_TRUE(content);
  EXPECT_EQ(title->role, ui::Role::heading);
  EXPECT_TRUE(draws("symbol globe 15/600 rgba(0.2 0.4 0.6 1)")) << drawing();
  EXPECT_TRUE(draws("text \"Title\" 14/700 rgba(0 0 0 0.85)")) << drawing();
  // The header is as high as its title's line, however high the symbol is.
  EXPECT_EQ(title->frame.height, 17);
  EXPECT_EQ(content->frame.y - title->frame.bottom(), 12);
  // The symbol's frame of 20 and 8 points between.
  EXPECT_EQ(title->frame.x - content->frame.x, 20 + 8);
  EXPECT_TRUE(draws(" 400 ")) << drawing();
  EXPECT_EQ(content->frame.width, restingWidth);
}

TEST_F(SettingsSectionTest, FollowsThePointerWithinAMoment) {
  showCard();
  const motion::Moment moment = motion::easeOut(0.4);
  test.host->pointerMoved({200, 60});
  advance(0.16 * moment.share);
  EXPECT_NEAR(growth(), moment.progress, 1e-6);
  advance(0.16);
  EXPECT_NEAR(growth(), 1, 1e-9);
  test.host->pointerExited();
  advance(0.16 * moment.share);
  EXPECT_NEAR(growth(), 1 - moment.progress, 1e-6);
}

TEST_F(SettingsSectionTest, HasAClearBorderWhereContrastIsAskedFor) {
  showCard();
  for (const bool isDark : {false, true}) {
    const std::string border =
        isDark ? "rgba(1 1 1 0.6) width 0.8\n" : "rgba(0 0 0 0.6) width 0.8\n";
    appear(isDark);
    EXPECT_FALSE(draws(border)) << drawing();
    appear(isDark, true);
    EXPECT_TRUE(draws(border)) << drawing();
  }
}

}  // namespace
}  // namespace orvane
