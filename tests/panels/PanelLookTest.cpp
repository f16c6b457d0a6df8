// The surfaces, fonts and colours of the panels in their windows. ComponentLookTest.cpp checks
// those of the components.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/panels/PanelFixture.hpp"

namespace orvane {
namespace {

struct Written {
  /// The beginning of the line on the recording canvas.
  const char* text;
  /// Size and weight.
  const char* font;
  const char* color;
};

constexpr const char* primary = "0 0 0 0.85";
constexpr const char* secondary = "0 0 0 0.6";
constexpr const char* accent = "0 0.478 1 1";
constexpr const char* white = "1 1 1 1";
/// The primary colour at an opacity of 0.82.
constexpr const char* secondaryButton = "0 0 0 0.697";
/// The primary colour at an opacity of 0.72.
constexpr const char* statement = "0 0 0 0.612";

class PanelLookTest : public PanelFixture {
 protected:
  void expectDrawn(const std::string& surface, const std::string& part) {
    EXPECT_EQ(drawn(part, surface), 1) << part;
  }
  /// After the end of all animations.
  void expectWritten(const std::string& surface, const std::vector<Written>& table) {
    machine.advance(1);
    for (const Written& line : table) {
      expectDrawn(surface, std::string(line.text) + " " + line.font + " rgba(" + line.color + ")");
    }
  }
};

TEST_F(PanelLookTest, FontsAndColoursOfTheMainPanel) {
  openMain();
  expectWritten(mainPanel,
                {{"text \"Orvane\"", "18/600", primary},
                 {"symbol gearshape", "18/600", "0.16 0.22 0.34 1"},
                 {"symbol lock", "24/700", white},
                 {"text \"Pin Dock to a Display\"", "18/700", primary},
                 {"text \"Dock stays on the selected display\"", "13/400", secondary},
                 {"symbol lock", "15/600", white},
                 {"symbol eye.slash", "24/700", white},
                 {"text \"Prevent Dock Pop-Up\"", "18/700", primary},
                 {"text \"Prevents screen edges from bringing up the Dock\"", "13/400", secondary},
                 {"symbol eye.slash", "13/700", secondaryButton}});
  ASSERT_TRUE(press("Prevent Dock Pop-Up"));
  expectWritten(mainPanel, {{"text \"the Dock”\"", "13/400", secondary},
                            {"symbol eye", "13/700", secondaryButton},
                            {"symbol gearshape", "13/700", secondaryButton}});
}

TEST_F(PanelLookTest, TheSymbolInPlaceOfTheApplicationsIcon) {
  server().resources().images.remove("AppIcon");
  openMain();
  expectWritten(mainPanel, {{"symbol dock.rectangle", "16/600", accent}});
}

TEST_F(PanelLookTest, FontsAndColoursOfTheSettings) {
  openSettings();
  expectWritten(settingsPanel, {{"symbol gearshape.fill", "18/600", white},
                                {"text \"Settings\"", "17/700", primary},
                                {"symbol xmark", "12/700", secondary},
                                {"symbol globe", "15/600", "0.03 0.47 0.98 1"},
                                {"text \"Use Orvane in\"", "13/400", primary},
                                {"symbol keyboard", "15/600", "0.34 0.39 0.95 1"},
                                {"text \"Hold the shortcut to allow Dock\"", "13/400", primary},
                                {"symbol hand.raised", "15/600", "0.02 0.62 0.64 1"},
                                {"text \"upload, or share personal data\"", "12/400", statement},
                                {"symbol doc.text", "13/600", primary},
                                {"symbol lock.shield", "13/600", primary},
                                {"symbol lifepreserver", "15/600", "0.12 0.58 0.92 1"},
                                {"symbol envelope", "13/600", primary}});
}

TEST_F(PanelLookTest, TheMainWindowHasItsGradientRimAndHighlight) {
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

TEST_F(PanelLookTest, TheApplicationsIconHasAShadowInTheAccentColour) {
  openMain();
  expectDrawn(mainPanel, "shadow rgba(0 0.478 1 0.22) radius 4 offset 0 1");
  expectDrawn(mainPanel, " 22 22 22 r5 continuous)");
}

TEST_F(PanelLookTest, TheImagesOfTheDisplaysHaveOneSizeAndAFaintShadow) {
  openMain();
  EXPECT_EQ(drawn(" 122 70)"), 3);
  EXPECT_EQ(drawn(" opacity 1 shadow rgba(0 0 0 0.06) radius "), 3);
}

TEST_F(PanelLookTest, TheSettingsWindowAndItsHeaderHaveTheirGradients) {
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

TEST_F(PanelLookTest, TheHeaderOfTheSettingsEndsWithADivider) {
  openSettings();
  const std::string line = "fill rectangle(0 45 420 1) gradient(0 45.5 to 420 45.5, ";
  expectDrawn(settingsPanel, line + "0 rgba(1 1 1 0.72), 1 rgba(0.03 0.47 0.98 0.16))");
  machine.appearance.isDark = true;
  expectDrawn(settingsPanel, line + "0 rgba(1 1 1 0.12), 1 rgba(0.03 0.47 0.98 0.22))");
}

TEST_F(PanelLookTest, TheTileInTheHeaderOfTheSettingsIsBlueToIndigo) {
  openSettings();
  const std::string tile = "(18 8 30 30 r8 continuous) ";
  expectDrawn(settingsPanel,
              "shadow rounded" + tile + "rgba(0.03 0.47 0.98 0.25) radius 5 offset 0 2");
  expectDrawn(settingsPanel, "fill rounded" + tile +
                                 "gradient(18 8 to 48 38, 0 rgba(0.03 0.47 0.98 1), "
                                 "1 rgba(0.34 0.39 0.95 1))");
}

TEST_F(PanelLookTest, EachCardOfTheSettingsHasItsTint) {
  openSettings();
  for (const char* tint :
       {"0.03 0.47 0.98", "0.34 0.39 0.95", "0.02 0.62 0.64", "0.12 0.58 0.92"}) {
    expectDrawn(settingsPanel, std::string(" r10 continuous) rgba(") + tint + " 0.05)");
    expectDrawn(settingsPanel, std::string(" r9.6 continuous) rgba(") + tint + " 0.14) width 0.8");
  }
}

}  // namespace
}  // namespace orvane
