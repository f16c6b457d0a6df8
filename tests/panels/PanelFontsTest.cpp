// The font and colour of every text and symbol of the panels.
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
/// Darker, for contrast on a veil of the accent colour.
constexpr const char* accentOnPill = "0 0.459 0.959 1";
constexpr const char* white = "1 1 1 1";
/// The primary colour at an opacity of 0.82.
constexpr const char* secondaryButton = "0 0 0 0.697";
/// The primary colour at an opacity of 0.72.
constexpr const char* statement = "0 0 0 0.612";

class PanelFontsTest : public PanelFixture {
 protected:
  /// After the end of all animations.
  void expectWritten(const std::string& surface, const std::vector<Written>& table) {
    machine.advance(1);
    for (const Written& line : table) {
      const std::string start = std::string(line.text) + " " + line.font + " rgba(" + line.color;
      EXPECT_EQ(drawn(start + ")", surface), 1) << start;
    }
  }
};

TEST_F(PanelFontsTest, TheMainPanelAtRest) {
  openMain();
  expectWritten(mainPanel,
                {{"text \"Orvane\"", "18/600", primary},
                 {"symbol gearshape", "18/600", "0.16 0.22 0.34 1"},
                 {"symbol lock", "24/700", white},
                 {"text \"Pin Dock to a Display\"", "18/700", primary},
                 {"text \"Dock stays on the selected display\"", "13/400", secondary},
                 {"text \"Not Pinned\"", "13/700", secondary},
                 {"text \"Display\"", "13/700", accent},
                 {"text \"Main Display\"", "11/600", accent},
                 {"symbol checkmark", "12/900", white},
                 {"text \"DELL\"", "13/500", primary},
                 {"text \"Right Display\"", "11/600", secondary},
                 {"symbol lock", "15/600", white},
                 {"text \"Pin Dock\"", "15/600", white},
                 {"symbol eye.slash", "24/700", white},
                 {"text \"Prevent Dock Pop-Up\"", "18/700", primary},
                 {"text \"Prevents screen edges from bringing up the Dock\"", "13/400", secondary},
                 {"text \"Off\"", "13/700", secondary},
                 {"symbol eye.slash", "13/700", secondaryButton},
                 {"text \"Prevent Dock Pop-Up\"", "13/700", secondaryButton}});
}

TEST_F(PanelFontsTest, TheMainPanelWhileItPrevents) {
  openMain();
  ASSERT_TRUE(press("Prevent Dock Pop-Up"));
  expectWritten(mainPanel, {{"text \"the Dock”\"", "13/400", secondary},
                            {"text \"Enabled\"", "13/700", accentOnPill},
                            {"symbol eye", "13/700", secondaryButton},
                            {"text \"Allow Dock Pop-Up\"", "13/700", secondaryButton},
                            {"symbol gearshape", "13/700", secondaryButton},
                            {"text \"Open Dock Settings\"", "13/700", secondaryButton}});
}

TEST_F(PanelFontsTest, TheTrafficLightsUnderThePointer) {
  openMain();
  hover("Close");
  expectWritten(mainPanel, {{"symbol xmark", "8.5/800", "0.38 0.04 0.04 1"},
                            {"symbol minus", "8.5/800", "0.56 0.34 0 1"}});
}

TEST_F(PanelFontsTest, TheSymbolInPlaceOfTheApplicationsIcon) {
  server().resources().images.remove("AppIcon");
  openMain();
  expectWritten(mainPanel, {{"symbol dock.rectangle", "16/600", accent}});
}

TEST_F(PanelFontsTest, TheSettingsPanel) {
  openSettings();
  expectWritten(settingsPanel, {{"symbol gearshape.fill", "18/600", white},
                                {"text \"Settings\"", "17/700", primary},
                                {"symbol xmark", "12/700", secondary},
                                {"symbol globe", "15/600", "0.03 0.47 0.98 1"},
                                {"text \"Language\"", "14/700", primary},
                                {"text \"Use Orvane in\"", "13/400", primary},
                                {"symbol keyboard", "15/600", "0.34 0.39 0.95 1"},
                                {"text \"Temporary Unlock Shortcut\"", "14/700", primary},
                                {"text \"Hold the shortcut to allow Dock\"", "13/400", primary},
                                {"symbol hand.raised", "15/600", "0.02 0.62 0.64 1"},
                                {"text \"Privacy\"", "14/700", primary},
                                {"text \"upload, or share personal data\"", "12/400", statement},
                                {"symbol doc.text", "13/600", primary},
                                {"text \"Privacy Policy\"", "13/600", primary},
                                {"symbol lock.shield", "13/600", primary},
                                {"text \"Accessibility Settings\"", "13/600", primary},
                                {"symbol lifepreserver", "15/600", "0.12 0.58 0.92 1"},
                                {"text \"Support\"", "14/700", primary},
                                {"text \"permission, or locking issues\"", "12/400", statement},
                                {"symbol envelope", "13/600", primary},
                                {"text \"Contact Support\"", "13/600", primary}});
}

}  // namespace
}  // namespace orvane
