// The tile at the head of a panel.
#include <array>
#include <cmath>

#include "Orvane/panels/main/PanelIcon.hpp"
#include "tests/panels/ComponentFixture.hpp"

namespace orvane {
namespace {

using PanelIconTest = ComponentFixture;

TEST_F(PanelIconTest, IsATileOfItsTintWithAWhiteSymbol) {
  show(PanelIcon{"lock", ui::Color::rgb(0.2, 0.4, 0.6)}, {48, 48});
  EXPECT_TRUE(draws("rounded(0 0 48 48")) << drawing();
  EXPECT_TRUE(draws("rgba(0.2 0.4 0.6 0.98)")) << drawing();
  EXPECT_TRUE(draws("rgba(0.2 0.4 0.6 0.78)")) << drawing();
  EXPECT_TRUE(draws("rgba(0.2 0.4 0.6 0.24)")) << drawing();
  EXPECT_TRUE(draws("symbol lock 24/700 rgba(1 1 1 1)")) << drawing();
}

/// Composes the fills' upper and lower ends over a ground.
class EndsOfFills : public ui::RecordingCanvas {
 public:
  explicit EndsOfFills(double ground) : ends_{Light{ground}, Light{ground}} {}

  void fill(const ui::Shape& /*shape*/, const ui::Paint& paint) override {
    cover(ends_[0], paint.stops.front().color);
    cover(ends_[1], paint.stops.back().color);
  }
  /// Relative luminance as WCAG 2.1 defines it.
  [[nodiscard]] double upper() const { return luminance(ends_[0]); }
  [[nodiscard]] double lower() const { return luminance(ends_[1]); }

 private:
  struct Light {
    explicit Light(double grey) : red(grey), green(grey), blue(grey) {}
    double red;
    double green;
    double blue;
  };

  static void cover(Light& light, const ui::Rgba& color) {
    light.red += (color.red - light.red) * color.alpha;
    light.green += (color.green - light.green) * color.alpha;
    light.blue += (color.blue - light.blue) * color.alpha;
  }
  static double luminance(const Light& light) {
    const auto linear = [](double component) {
      return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(light.red) + 0.7152 * linear(light.green) + 0.0722 * linear(light.blue);
  }

  std::array<Light, 2> ends_;
};

TEST_F(PanelIconTest, IsLitFromAboveWhateverItLiesOn) {
  for (const bool isDark : {false, true}) {
    for (const ui::Color& tint : {ui::Color::accent(), ui::Color::gray()}) {
      show(PanelIcon{"lock", tint}, {48, 48});
      appear(isDark);
      for (const double ground : {0.0, 0.5, 1.0}) {
        EndsOfFills canvas(ground);
        test.host->paint(canvas, {0, 0, 48, 48});
        EXPECT_GT(canvas.upper(), canvas.lower() * 1.2) << isDark << " over " << ground;
      }
    }
  }
}

}  // namespace
}  // namespace orvane
