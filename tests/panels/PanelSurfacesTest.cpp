// The surfaces of the panels, as drawn in their windows: the only oracle of their palettes.
#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/panels/PanelFixture.hpp"

namespace orvane {
namespace {

class PanelSurfacesTest : public PanelFixture {
 protected:
  /// That exactly one line ends with `call`.
  void expectDrawn(const std::string& surface, const std::string& call) {
    const std::vector<std::string> lines = drawnLines(surface);
    EXPECT_EQ(
        std::ranges::count_if(lines, [&](const std::string& line) { return line.ends_with(call); }),
        1)
        << call;
  }
};

TEST_F(PanelSurfacesTest, TheMainWindowHasItsGradientRimAndHighlight) {
  const std::string form = "rounded(0 0 700 516 r24 continuous)";
  openMain();
  expectDrawn(mainPanel, "clip " + form);
  expectDrawn(mainPanel, "fill " + form +
                             " gradient(350 0 to 350 516, 0 rgba(1 1 1 0.34), "
                             "0.5 rgba(0 0.478 1 0.055), 1 rgba(1 1 1 0.12))");
  expectDrawn(mainPanel, "stroke " + form + " rgba(1 1 1 0.28) width 1");
  expectDrawn(mainPanel,
              "fill rectangle(0 0 700 150) gradient(350 0 to 350 150, 0 rgba(1 1 1 0.28), "
              "0.5 rgba(1 1 1 0.12), 1 rgba(1 1 1 0))");
  machine.appearance.isDark = true;
  expectDrawn(mainPanel, "fill " + form +
                             " gradient(350 0 to 350 516, 0 rgba(1 1 1 0.07), "
                             "0.5 rgba(0.039 0.518 1 0.05), 1 rgba(0 0 0 0.16))");
  expectDrawn(mainPanel, "stroke " + form + " rgba(1 1 1 0.08) width 1");
  expectDrawn(mainPanel,
              "fill rectangle(0 0 700 150) gradient(350 0 to 350 150, 0 rgba(1 1 1 0.085), "
              "0.5 rgba(1 1 1 0.035), 1 rgba(1 1 1 0))");
}

TEST_F(PanelSurfacesTest, TheApplicationsIconHasAShadowInTheAccentColour) {
  openMain();
  expectDrawn(mainPanel, "shadow rgba(0 0.478 1 0.22) radius 4 offset 0 1");
  expectDrawn(mainPanel, " 22 22 22 r5 continuous)");
}

TEST_F(PanelSurfacesTest, TheImagesOfTheDisplaysHaveOneSizeAndAFaintShadow) {
  openMain();
  EXPECT_EQ(drawn(" 122 70)"), 3);
  EXPECT_EQ(drawn(" opacity 1 shadow rgba(0 0 0 0.06) radius "), 3);
}

TEST_F(PanelSurfacesTest, TheSettingsWindowAndItsHeaderHaveTheirGradients) {
  openSettings();
  expectDrawn(settingsPanel,
              "fill rectangle(0 0 420 476) gradient(210 0 to 210 476, 0 rgba(0.97 0.99 1 0.82), "
              "0.5 rgba(0.91 0.97 1 0.7), 1 rgba(0.96 0.99 0.98 0.78))");
  expectDrawn(settingsPanel,
              "fill rectangle(0 0 420 46) gradient(210 0 to 210 46, 0 rgba(1 1 1 0.58), "
              "0.5 rgba(0.03 0.47 0.98 0.1), 1 rgba(0.02 0.62 0.64 0.08))");
  machine.appearance.isDark = true;
  expectDrawn(settingsPanel,
              "fill rectangle(0 0 420 476) gradient(210 0 to 210 476, "
              "0 rgba(0.055 0.075 0.095 0.98), 0.5 rgba(0.03 0.07 0.1 0.94), "
              "1 rgba(0.02 0.05 0.055 0.94))");
  expectDrawn(settingsPanel,
              "fill rectangle(0 0 420 46) gradient(210 0 to 210 46, 0 rgba(1 1 1 0.075), "
              "0.5 rgba(0.03 0.47 0.98 0.12), 1 rgba(0.02 0.62 0.64 0.08))");
}

TEST_F(PanelSurfacesTest, TheHeaderOfTheSettingsEndsWithADivider) {
  openSettings();
  const std::string line = "fill rectangle(0 45 420 1) gradient(0 45.5 to 420 45.5, ";
  expectDrawn(settingsPanel, line + "0 rgba(1 1 1 0.72), 1 rgba(0.03 0.47 0.98 0.16))");
  machine.appearance.isDark = true;
  expectDrawn(settingsPanel, line + "0 rgba(1 1 1 0.12), 1 rgba(0.03 0.47 0.98 0.22))");
}

TEST_F(PanelSurfacesTest, TheTileInTheHeaderOfTheSettingsIsBlueToIndigo) {
  openSettings();
  const std::string tile = "(18 8 30 30 r8 continuous) ";
  expectDrawn(settingsPanel,
              "shadow rounded" + tile + "rgba(0.03 0.47 0.98 0.25) radius 5 offset 0 2");
  expectDrawn(settingsPanel, "fill rounded" + tile +
                                 "gradient(18 8 to 48 38, 0 rgba(0.03 0.47 0.98 1), "
                                 "1 rgba(0.34 0.39 0.95 1))");
}

TEST_F(PanelSurfacesTest, EachCardOfTheSettingsHasItsTint) {
  openSettings();
  for (const char* tint :
       {"0.03 0.47 0.98", "0.34 0.39 0.95", "0.02 0.62 0.64", "0.12 0.58 0.92"}) {
    const std::string color = std::string(" r10 continuous) rgba(") + tint;
    expectDrawn(settingsPanel, color + " 0.06) radius 8 offset 0 3");
    expectDrawn(settingsPanel, color + " 0.05)");
    expectDrawn(settingsPanel, std::string(" r9.6 continuous) rgba(") + tint + " 0.14) width 0.8");
  }
}

}  // namespace
}  // namespace orvane
