// Fonts, colours and sizes of the alert and the guide, as drawn on the canvas, in both appearances.
#include <optional>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "Orvane/ui/draw/StandardColors.hpp"
#include "tests/permission/PermissionFlow.hpp"

namespace orvane {
namespace {

using ui::SystemColor;
using ui::Weight;

/// A text or a symbol. Consecutive lines or texts of the same style count as one and are named by
/// the first.
struct Ink {
  /// How the text begins, or the symbol's whole name.
  std::string name;
  ui::Font font;
  /// None where the button's style determines it.
  std::optional<SystemColor> color;
};

constexpr const char* waitingBegins = "Waiting for permission in System Settings";
constexpr const char* notDetectedBegins = "Permission not detected yet.";

class PermissionLookTest : public PermissionFlow, public testing::WithParamInterface<bool> {
 protected:
  PermissionLookTest() { machine.appearance.isDark = GetParam(); }

  [[nodiscard]] static ui::Rgba resolved(SystemColor color) {
    ui::Appearance appearance;
    appearance.dark = GetParam();
    return ui::standardColor(color, appearance);
  }
  /// The colour in the recording canvas's format.
  static std::string written(const ui::Rgba& color) {
    ui::RecordingCanvas canvas;
    canvas.symbol("", {}, color, {});
    const std::string& line = canvas.lines().front();
    const std::size_t start = line.find("rgba");
    return line.substr(start, line.find(')') + 1 - start);
  }
  static std::string written(const ui::Font& font) {
    std::ostringstream stream;
    stream << font.size << "/" << static_cast<int>(font.weight);
    return stream.str();
  }

  void expectInk(const std::string& drawn, const std::vector<Ink>& expected) {
    const std::regex ink(R"re((text|symbol) "?(.*?)"? (\d+/\d+) (rgba\([^)]*\)))re");
    std::vector<std::smatch> found;
    std::istringstream stream(drawn);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) {
      lines.push_back(line);
    }
    for (const std::string& line : lines) {
      std::smatch match;
      if (std::regex_search(line, match, ink) &&
          (found.empty() || match[3] != found.back()[3] || match[4] != found.back()[4])) {
        found.push_back(match);
      }
    }
    ASSERT_EQ(found.size(), expected.size()) << drawn;
    for (std::size_t index = 0; index < found.size(); ++index) {
      const Ink& row = expected[index];
      EXPECT_EQ(found[index][2].str().find(row.name), 0U) << found[index][2];
      EXPECT_EQ(found[index][3], written(row.font)) << row.name;
      if (row.color) {
        EXPECT_EQ(found[index][4], written(resolved(*row.color))) << row.name;
      }
    }
  }
  static void expectDrawn(const std::string& drawn, const std::string& part) {
    EXPECT_NE(drawn.find(part), std::string::npos) << part << " is not in\n" << drawn;
  }
};

INSTANTIATE_TEST_SUITE_P(Appearances, PermissionLookTest, testing::Bool(),
                         [](const auto& tested) { return tested.param ? "Dark" : "Light"; });

// The Mac's text styles: headline 13 bold, subheadline 11, title 22, title 2 17, body 13,
// caption 10.
TEST_P(PermissionLookTest, TheAlertsTextsHaveTheirFontsAndColours) {
  check('a');
  expectInk(drawing("alert"),
            {{"Enable macOS Accessibility Permission", {13, Weight::bold}, SystemColor::primary},
             {"Orvane uses this permission", {11, Weight::regular}, SystemColor::secondary},
             {"Not Now", {13, Weight::regular}, {}},
             {"Open Privacy Settings", {13, Weight::regular}, {}}});
}

TEST_P(PermissionLookTest, TheAlertsIconIsSixtyFourPointsWideAndHigh) {
  check('a');
  EXPECT_TRUE(std::regex_search(drawing("alert"), std::regex(R"(image AppIcon \(208 \d+ 64 64\))")))
      << drawing("alert");
}

TEST_P(PermissionLookTest, WithoutAnIconTheAlertsSymbolIsLargeSemiboldAndInTheAccentColour) {
  server().resources().images.remove("AppIcon");
  machine.appearance.accent = desk::Appearance::Accent{51, 102, 204};
  check('a');
  const std::string drawn = drawing("alert");
  expectDrawn(drawn, "symbol dock.rectangle 44/600 rgba(0.2 0.4 0.8 1) (");
}

TEST_P(PermissionLookTest, WhileItLooksTheGuidesPartsHaveTheirFontsAndColours) {
  openGuide();
  const auto withStatus = [](const Ink& status) {
    return std::vector<Ink>{{"xmark.circle.fill", {22, Weight::regular}, SystemColor::secondary},
                            {"Next Step", {17, Weight::bold}, SystemColor::primary},
                            {"In Privacy", {13, Weight::regular}, SystemColor::secondary},
                            {"arrow.down", {24, Weight::semibold}, SystemColor::orange},
                            status,
                            {"Done", {13, Weight::bold}, {}}};
  };
  expectInk(drawing("guide"),
            withStatus({waitingBegins, {10, Weight::regular}, SystemColor::secondary}));
  machine.advance(13);
  expectInk(drawing("guide"), withStatus({notDetectedBegins, {10, Weight::regular}, std::nullopt}));
}

TEST_P(PermissionLookTest, ASuccessIsAGreenCheckMarkOfSixtyPointsAndAGreenHeadline) {
  openGuide();
  machine.permission.setTrusted(true);
  machine.advance(2.4);
  expectInk(drawing("guide"), {{"xmark.circle.fill", {22, Weight::regular}, SystemColor::secondary},
                               {"Next Step", {17, Weight::bold}, SystemColor::primary},
                               {"In Privacy", {13, Weight::regular}, SystemColor::secondary},
                               {"checkmark.circle.fill", {60, Weight::regular}, SystemColor::green},
                               {"Permission Enabled", {13, Weight::bold}, std::nullopt},
                               {"Done", {13, Weight::bold}, {}}});
}

TEST_P(PermissionLookTest, TheGuidesIconHasASoftShadow) {
  openGuide();
  const std::string drawn = drawing("guide");
  const std::size_t shadow = drawn.find("shadow rgba(0 0 0 0.33) radius 5 offset 0 0\n");
  ASSERT_NE(shadow, std::string::npos) << drawn;
  EXPECT_EQ(drawn.find("shadow "), shadow) << "it is the only one";
  const std::string within = drawn.substr(shadow, drawn.find("end\n", shadow) - shadow);
  EXPECT_TRUE(std::regex_search(within, std::regex(R"(image AppIcon \(139 \d+ 82 82\))"))) << drawn;
}

TEST_P(PermissionLookTest, TheCardIsOfTheWindowsColourWithAFineOutline) {
  openGuide();
  const std::string drawn = drawing("guide");
  ui::Rgba outline = resolved(SystemColor::secondary);
  outline.alpha *= 0.2;
  expectDrawn(drawn, "fill rounded(0 0 360 500 r12 continuous) " +
                         written(resolved(SystemColor::windowBackground)) + "\n");
  // A line of one point lies within the card when its middle runs half a point inside.
  expectDrawn(
      drawn, "stroke rounded(0.5 0.5 359 499 r11.5 continuous) " + written(outline) + " width 1\n");
}

}  // namespace
}  // namespace orvane
