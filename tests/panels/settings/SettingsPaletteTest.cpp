// The colours of the settings panel.
#include "Orvane/panels/settings/SettingsPalette.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "tests/panels/ComponentFixture.hpp"

namespace orvane {
namespace {

class SettingsPaletteTest : public ComponentFixture {
 protected:
  /// Whether a rectangle of 100 by 100 points is filled with what is written by hand.
  bool fills(ui::Gradient (*gradient)(bool), bool isDark, const std::string& written) {
    appear(isDark);
    show(ui::Rectangle().fill(gradient(isDark)), {100, 100});
    return draws("fill rectangle(0 0 100 100) gradient(" + written + ")");
  }
};

TEST_F(SettingsPaletteTest, HoldsItsColours) {
  const auto components = [](const ui::Color& color) {
    return color.resolve(ui::Appearance{}, ui::ColorResolver{});
  };
  EXPECT_EQ(components(SettingsPalette::blue()), (ui::Rgba{0.03, 0.47, 0.98, 1}));
  EXPECT_EQ(components(SettingsPalette::sky()), (ui::Rgba{0.12, 0.58, 0.92, 1}));
  EXPECT_EQ(components(SettingsPalette::indigo()), (ui::Rgba{0.34, 0.39, 0.95, 1}));
  EXPECT_EQ(components(SettingsPalette::mint()), (ui::Rgba{0.02, 0.62, 0.64, 1}));
  EXPECT_EQ(components(SettingsPalette::windowTop()), (ui::Rgba{0.97, 0.99, 1.0, 1}));
  EXPECT_EQ(components(SettingsPalette::windowMid()), (ui::Rgba{0.91, 0.97, 1.0, 1}));
  EXPECT_EQ(components(SettingsPalette::windowBottom()), (ui::Rgba{0.96, 0.99, 0.98, 1}));
  EXPECT_EQ(components(SettingsPalette::buttonFill()), (ui::Rgba{0.85, 0.93, 1.0, 1}));
}

TEST_F(SettingsPaletteTest, TheWindow) {
  EXPECT_TRUE(fills(SettingsPalette::windowGradient, false,
                    "50 0 to 50 100, 0 rgba(0.97 0.99 1 0.82), 0.5 rgba(0.91 0.97 1 0.7), "
                    "1 rgba(0.96 0.99 0.98 0.78)"))
      << drawing();
  EXPECT_TRUE(fills(SettingsPalette::windowGradient, true,
                    "50 0 to 50 100, 0 rgba(0.055 0.075 0.095 0.98), 0.5 rgba(0.03 0.07 0.1 0.94), "
                    "1 rgba(0.02 0.05 0.055 0.94)"))
      << drawing();
}

TEST_F(SettingsPaletteTest, TheHeader) {
  EXPECT_TRUE(fills(SettingsPalette::headerGradient, false,
                    "50 0 to 50 100, 0 rgba(1 1 1 0.58), 0.5 rgba(0.03 0.47 0.98 0.1), "
                    "1 rgba(0.02 0.62 0.64 0.08)"))
      << drawing();
  EXPECT_TRUE(fills(SettingsPalette::headerGradient, true,
                    "50 0 to 50 100, 0 rgba(1 1 1 0.075), 0.5 rgba(0.03 0.47 0.98 0.12), "
                    "1 rgba(0.02 0.62 0.64 0.08)"))
      << drawing();
}

TEST_F(SettingsPaletteTest, TheDividerWhichRunsAlongItsLine) {
  EXPECT_TRUE(fills(SettingsPalette::dividerGradient, false,
                    "0 50 to 100 50, 0 rgba(1 1 1 0.72), 1 rgba(0.03 0.47 0.98 0.16)"))
      << drawing();
  EXPECT_TRUE(fills(SettingsPalette::dividerGradient, true,
                    "0 50 to 100 50, 0 rgba(1 1 1 0.12), 1 rgba(0.03 0.47 0.98 0.22)"))
      << drawing();
}

}  // namespace
}  // namespace orvane
