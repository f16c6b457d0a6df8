// The paint of each component of the panels and of the kit's controls in its states, and its
// layout.
#include <algorithm>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "Orvane/panels/main/DisplayChoiceCard.hpp"
#include "Orvane/panels/main/DockPanel.hpp"
#include "Orvane/panels/main/PanelIcon.hpp"
#include "Orvane/panels/main/PrimaryActionButtonStyle.hpp"
#include "Orvane/panels/main/SecondaryActionButtonStyle.hpp"
#include "Orvane/panels/main/StatusPill.hpp"
#include "Orvane/panels/main/TitleBarIconButtonStyle.hpp"
#include "Orvane/panels/main/TrafficLightButton.hpp"
#include "Orvane/panels/settings/SettingsIconButtonStyle.hpp"
#include "Orvane/panels/settings/SettingsSecondaryButtonStyle.hpp"
#include "Orvane/panels/settings/SettingsSection.hpp"
#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/Image.hpp"
#include "Orvane/ui/views/Picker.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "tests/panels/ComponentFixture.hpp"
#include "tests/support/Contrast.hpp"

namespace orvane {
namespace {

class ComponentLookTest : public ComponentFixture {
 protected:
  enum Appearance { light, dark, highContrast, darkHighContrast };
  enum Pointer { away, over, pressing };

  struct Look {
    Appearance appearance;
    Pointer pointer;
    /// As `paints()` returns them.
    std::string paints;
  };

  void expectLooks(const ui::View& view, ui::Size size, const std::vector<Look>& looks) {
    show(view, size);
    const ui::Point middle{size.width / 2, size.height / 2};
    for (const Look& look : looks) {
      appear(look.appearance == dark || look.appearance == darkHighContrast,
             look.appearance >= highContrast);
      if (look.pointer == away) {
        leave();
      } else if (look.pointer == over) {
        hover(middle);
      } else {
        hold(middle);
      }
      EXPECT_EQ(paints(), look.paints) << "row " << &look - looks.data();
    }
  }

  /// The calls that draw, in order, without places, names and sizes: "fill rgba(0 0 0 1); ...".
  [[nodiscard]] std::string paints() const {
    const std::regex call(
        R"re(^ *(?:(fill|stroke|shadow) [a-z]+\([^)]*\) (.*)|(text|symbol) (?:"[^"]*"|\S+) )re"
        R"re((\S+ rgba\([^)]*\)).*|transform (scale) (\S+).*))re");
    std::istringstream stream(drawing());
    std::string result;
    for (std::string line; std::getline(stream, line);) {
      if (std::smatch match; std::regex_match(line, match, call)) {
        result += (result.empty() ? "" : "; ") + match.str(1) + match.str(3) + match.str(5) + " " +
                  match.str(2) + match.str(4) + match.str(6);
      }
    }
    return result;
  }

  template <typename Style>
  static ui::View textButton(Style style) {
    return ui::Button([] {}, ui::Text("Go").fixedSize()).style(style);
  }
  template <typename Style>
  static ui::View symbolButton(const char* symbol, double side, Style style) {
    return ui::Button([] {}, ui::Symbol(symbol).frame(side, side)).style(style);
  }
  static ui::View card(bool isSelected) {
    DisplayChoiceCard result;
    result.display.name = "Studio";
    result.roleLabel = "Left Display";
    result.isSelected = isSelected;
    return result;
  }
  static ui::View section() {
    const ui::Color tint = ui::Color::rgb(0.2, 0.4, 0.6);
    return SettingsSection{.systemImage = "globe",
                           .title = "Title",
                           .tint = tint,
                           .backgroundTint = tint.opacity(0.05),
                           .content = ui::Text("Content")};
  }
};

TEST_F(ComponentLookTest, OfThePrimaryButton) {
  expectLooks(textButton(PrimaryActionButtonStyle{.tint = ui::Color::red()}), {200, 38},
              {{light, away,
                "fill gradient(100 0 to 100 38, 0 rgba(1 0.327 0.29 1), 1 rgba(1 0.231 0.188 1)); "
                "text 15/600 rgba(1 1 1 1)"},
               {light, pressing,
                "scale 0.995; fill gradient(100 0 to 100 38, 0 rgba(1 0.327 0.29 0.82), "
                "1 rgba(1 0.231 0.188 0.82)); text 15/600 rgba(1 1 1 1)"}});
}

TEST_F(ComponentLookTest, OfTheSecondaryButton) {
  // The primary colour is black at 0.85, and of that 0.82.
  const std::string ink = "; text 13/700 rgba(0 0 0 0.697)";
  const std::string darkInk = "; text 13/700 rgba(1 1 1 0.697)";
  expectLooks(
      textButton(SecondaryActionButtonStyle{}), {200, 34},
      {{light, away, "fill rgba(0 0 0 0.05); stroke rgba(0 0 0 0.065) width 0.8" + ink},
       {dark, away, "fill rgba(1 1 1 0.085); stroke rgba(1 1 1 0.18) width 0.8" + darkInk},
       {light, pressing,
        "scale 0.99; fill rgba(0 0 0 0.08); stroke rgba(0 0 0 0.065) width 0.8" + ink},
       {dark, pressing,
        "scale 0.99; fill rgba(1 1 1 0.14); stroke rgba(1 1 1 0.18) width 0.8" + darkInk},
       {highContrast, away,
        "fill rgba(0 0 0 0.05); stroke rgba(0 0 0 0.6) width 0.8; text 13/700 rgba(0 0 0 0.82)"}});
}

TEST_F(ComponentLookTest, OfTheTitleBarsButton) {
  const std::string ink = "; symbol 13/400 rgba(0.16 0.22 0.34 1)";
  const std::string darkInk = "; symbol 13/400 rgba(1 1 1 0.714)";
  const std::string shadow = "shadow rgba(0 0 0 0.1) radius 5 offset 0 2; ";
  const std::string darkShadow = "shadow rgba(0 0 0 0.22) radius 5 offset 0 2; ";
  expectLooks(
      symbolButton("gearshape", 34, TitleBarIconButtonStyle{}), {34, 34},
      {{light, away, shadow + "fill rgba(1 1 1 0.32); stroke rgba(1 1 1 0.5) width 0.7" + ink},
       {dark, away,
        darkShadow + "fill rgba(1 1 1 0.14); stroke rgba(1 1 1 0.22) width 0.7" + darkInk},
       {light, pressing,
        "scale 0.96; " + shadow + "fill rgba(1 1 1 0.12); stroke rgba(1 1 1 0.5) width 0.7" + ink},
       {dark, pressing,
        "scale 0.96; " + darkShadow + "fill rgba(1 1 1 0.075); stroke rgba(1 1 1 0.22) width 0.7" +
            darkInk},
       {darkHighContrast, away,
        darkShadow + "fill rgba(1 1 1 0.14); stroke rgba(1 1 1 0.6) width 0.7; "
                     "symbol 13/400 rgba(1 1 1 0.84)"}});
}

TEST_F(ComponentLookTest, OfTheSettingsCloseButton) {
  // The secondary colour is black at 0.6 or white at 0.7, and the plate a tenth of that.
  const std::string pressed =
      "scale 0.94; fill rgba(0.03 0.47 0.98 0.18); stroke rgba(0 0 0 0) width 0.8; "
      "symbol 13/400 rgba(0.34 0.39 0.95 1)";
  const std::string ink = "; symbol 13/400 rgba(0 0 0 0.6)";
  const std::string darkInk = "; symbol 13/400 rgba(1 1 1 0.7)";
  expectLooks(
      symbolButton("xmark", 28, SettingsIconButtonStyle{}), {28, 28},
      {{light, over, "fill rgba(0 0 0 0.06); stroke rgba(0 0 0 0) width 0.8" + ink},
       {dark, away, "fill rgba(1 1 1 0.07); stroke rgba(0 0 0 0) width 0.8" + darkInk},
       {light, pressing, pressed},
       {dark, pressing, pressed},
       {highContrast, away,
        "fill rgba(0 0 0 0.08); stroke rgba(0 0 0 0.6) width 0.8; symbol 13/400 rgba(0 0 0 0.8)"}});
}

TEST_F(ComponentLookTest, OfTheSettingsButtons) {
  const std::string fill = "fill rgba(0.85 0.93 1 0.9); fill rgba(0.03 0.47 0.98 ";
  const std::string darkFill = "fill rgba(1 1 1 0.1); fill rgba(1 1 1 ";
  const std::string rim = "; stroke rgba(0.03 0.47 0.98 0.18) width 0.7";
  const std::string ink = "; text 13/600 rgba(0 0 0 0.85)";
  const std::string darkInk = "; text 13/600 rgba(1 1 1 0.85)";
  expectLooks(textButton(SettingsSecondaryButtonStyle{}), {35, 25},
              {{light, over, fill + "0)" + rim + ink},
               {dark, away, darkFill + "0); stroke rgba(1 1 1 0.16) width 0.7" + darkInk},
               {light, pressing, fill + "0.22)" + rim + ink},
               {dark, pressing, darkFill + "0.14); stroke rgba(1 1 1 0.16) width 0.7" + darkInk},
               {highContrast, away,
                fill + "0); stroke rgba(0 0 0 0.6) width 0.7; text 13/600 rgba(0 0 0 1)"},
               {darkHighContrast, away,
                darkFill + "0); stroke rgba(1 1 1 0.6) width 0.7; text 13/600 rgba(1 1 1 1)"}});
}

TEST_F(ComponentLookTest, OfAPanel) {
  expectLooks(DockPanel{.content = ui::Text("12345")}, {300, 101},
              {{light, away,
                "shadow rgba(0 0 0 0.18) radius 10 offset 0 4; fill rgba(1 1 1 0.28); "
                "fill gradient(150 24 to 150 77, 0 rgba(1 1 1 0.3), 1 rgba(1 1 1 0.1)); "
                "stroke rgba(1 1 1 0.5) width 0.8; text 13/400 rgba(0 0 0 0.85)"},
               {dark, away,
                "shadow rgba(0 0 0 0.396) radius 10 offset 0 4; fill rgba(1 1 1 0.03); "
                "fill gradient(150 24 to 150 77, 0 rgba(1 1 1 0.1), 0.5 rgba(0.039 0.518 1 0.055), "
                "1 rgba(0 0 0 0.08)); stroke rgba(1 1 1 0.22) width 0.8; "
                "text 13/400 rgba(1 1 1 0.85)"}});
}

TEST_F(ComponentLookTest, OfAPanelsIcon) {
  expectLooks(PanelIcon{.systemImage = "lock", .tint = ui::Color::rgb(0.2, 0.4, 0.6)}, {48, 48},
              {{light, away,
                "shadow rgba(0.2 0.4 0.6 0.24) radius 7 offset 0 3; fill rgba(0 0 0 0.7); "
                "fill gradient(24 0 to 24 48, 0 rgba(0.2 0.4 0.6 0.98), 1 rgba(0.2 0.4 0.6 0.78)); "
                "fill gradient(24 0 to 24 48, 0 rgba(1 1 1 0.08), 1 rgba(1 1 1 0)); "
                "symbol 24/700 rgba(1 1 1 1)"}});
}

TEST_F(ComponentLookTest, OfAPill) {
  expectLooks(StatusPill{.text = "Pinned", .isActive = true}, {200, 60},
              {{light, away,
                "fill rgba(0 0.478 1 0.14); stroke rgba(1 1 1 0.5) width 0.7; "
                "text 13/700 rgba(0 0.459 0.959 1)"},
               {dark, away,
                "fill rgba(0.039 0.518 1 0.24); stroke rgba(1 1 1 0.22) width 0.7; "
                "text 13/700 rgba(0.37 0.684 1 1)"}});
  expectLooks(StatusPill{.text = "Off", .isActive = false}, {200, 60},
              {{light, away,
                "fill rgba(0 0 0 0.05); stroke rgba(1 1 1 0.5) width 0.7; "
                "text 13/700 rgba(0 0 0 0.6)"},
               {dark, away,
                "fill rgba(1 1 1 0.095); stroke rgba(1 1 1 0.22) width 0.7; "
                "text 13/700 rgba(1 1 1 0.7)"}});
}

TEST_F(ComponentLookTest, OfACard) {
  const std::string ink = "; text 13/500 rgba(0 0 0 0.85); text 11/600 rgba(0 0 0 0.6)";
  const std::string darkInk = "; text 13/500 rgba(1 1 1 0.85); text 11/600 rgba(1 1 1 0.7)";
  const std::string rim = "; stroke rgba(0 0 0 0.065) width 0.8";
  const std::string darkRim = "; stroke rgba(1 1 1 0.18) width 0.8";
  expectLooks(
      card(false), {200, 160},
      {{light, away, "fill rgba(1 1 1 0.075)" + rim + ink},
       {dark, away, "fill rgba(1 1 1 0.075)" + darkRim + darkInk},
       {light, over, "scale 1.012; fill rgba(1 1 1 0.2)" + rim + ink},
       {dark, over, "scale 1.012; fill rgba(1 1 1 0.14)" + darkRim + darkInk},
       {light, pressing,
        "scale 1.012; fill rgba(1 1 1 0.2)" + rim + ink + "; fill rgba(0 0 0 0.08)"},
       {dark, pressing,
        "scale 1.012; fill rgba(1 1 1 0.14)" + darkRim + darkInk + "; fill rgba(0 0 0 0.2)"},
       {highContrast, away,
        "fill rgba(1 1 1 0.075); stroke rgba(0 0 0 0.6) width 0.8; text 13/500 rgba(0 0 0 1); "
        "text 11/600 rgba(0 0 0 0.8)"}});
  const std::string selected =
      "scale 1.012; fill rgba(1 1 1 0.2); stroke rgba(0 0.478 1 1) width 1.3; "
      "text 13/700 rgba(0 0.478 1 1); text 11/600 rgba(0 0.478 1 1); fill rgba(0 0.478 1 1); "
      "symbol 12/900 rgba(1 1 1 1)";
  expectLooks(card(true), {200, 160}, {{light, away, selected}, {light, over, selected}});
}

TEST_F(ComponentLookTest, OfATrafficLight) {
  const std::string close =
      "fill rgba(1 0.3 0.29 1); stroke rgba(0.86 0.16 0.16 0.55) width 0.7; "
      "symbol 8.5/800 rgba(0.38 0.04 0.04 1)";
  const std::string hovered =
      "scale 1.1; shadow rgba(1 0.3 0.29 0.26) radius 4 offset 0 1; " + close;
  expectLooks(TrafficLightButton::close(true, "Close", [] {}), {40, 40},
              {{light, away, close},
               {light, over, hovered},
               {light, pressing, hovered + "; fill rgba(0 0 0 0.2)"},
               {light, away, close}});
  expectLooks(TrafficLightButton::minimise(true, "Minimise", [] {}), {40, 40},
              {{light, away,
                "fill rgba(1 0.7 0.04 1); stroke rgba(0.84 0.54 0.02 0.55) width 0.7; "
                "symbol 8.5/800 rgba(0.56 0.34 0 1)"}});
}

TEST_F(ComponentLookTest, OfASettingsCard) {
  const auto tinted = [](const std::string& opacity) {
    return "rgba(0.2 0.4 0.6 " + opacity + ")";
  };
  const auto surface = [&](const std::string& tint, const std::string& black,
                           const std::string& shadow) {
    return "shadow " + tinted(tint) + shadow + "; shadow rgba(0 0 0 " + black + ")" + shadow + "; ";
  };
  const std::string flat = " radius 8 offset 0 3";
  const std::string raised = " radius 12 offset 0 5";
  const std::string fills =
      "fill rgba(1 1 1 0.5); fill " + tinted("0.05") + "; stroke rgba(1 1 1 0.38) width 1; stroke ";
  const std::string darkFills = "fill rgba(1 1 1 0.045); fill " + tinted("0.05") +
                                "; stroke rgba(1 1 1 0.22) width 1; stroke ";
  const std::string symbol = "symbol 15/600 " + tinted("1");
  const auto texts = [](const std::string& color) {
    return "; text 14/700 rgba(" + color + "); text 13/400 rgba(" + color + ")";
  };
  const std::string ink = texts("0 0 0 0.85");
  const std::string darkInk = texts("1 1 1 0.85");
  expectLooks(
      section(), {400, 120},
      {{light, away,
        surface("0.06", "0.025", flat) + fills + tinted("0.14") + " width 0.8; " + symbol + ink},
       {light, over,
        "scale 1.006; " + surface("0.12", "0.045", raised) + fills + tinted("0.26") +
            " width 0.8; scale 1.06; " + symbol + ink},
       {dark, away,
        surface("0.08", "0.12", flat) + darkFills + tinted("0.24") + " width 0.8; " + symbol +
            darkInk},
       {dark, over,
        "scale 1.006; " + surface("0.16", "0.18", raised) + darkFills + tinted("0.38") +
            " width 0.8; scale 1.06; " + symbol + darkInk},
       {highContrast, away,
        surface("0.06", "0.025", flat) + fills + "rgba(0 0 0 0.6) width 0.8; " + symbol +
            texts("0 0 0 1")},
       {darkHighContrast, away,
        surface("0.08", "0.12", flat) + darkFills + "rgba(1 1 1 0.6) width 0.8; " + symbol +
            texts("1 1 1 1")}});
}

TEST_F(ComponentLookTest, OfAPicker) {
  const std::string shadow = "shadow rgba(0 0 0 0.12) radius 1 offset 0 0.5; ";
  const auto texts = [](const std::string& color) {
    return "; text 13/400 rgba(" + color + "); symbol 9/600 rgba(" + color + ")";
  };
  const std::string fill = shadow + "fill rgba(1 1 1 0.95); fill rgba(0 0 0 ";
  const std::string ink = "); stroke rgba(0 0 0 0.468) width 1" + texts("0 0 0 0.85");
  expectLooks(
      ui::Picker{"Language", {"English"}, 0, {}}, {160, 22},
      {{light, away, fill + "0" + ink},
       {light, pressing, fill + "0.102" + ink},
       {dark, away,
        shadow + "fill rgba(1 1 1 0.16); fill rgba(1 1 1 0); stroke rgba(1 1 1 0.298) width 1" +
            texts("1 1 1 0.85")},
       {highContrast, away, fill + "0); stroke rgba(0 0 0 0.6) width 1" + texts("0 0 0 1")}});
}

TEST_F(ComponentLookTest, OfABorderedButton) {
  const std::string rim = "; stroke rgba(0 0 0 0.06) width 0.5; text 13/400 rgba(";
  const std::string darkRim = "; stroke rgba(1 1 1 0.1) width 0.5; text 13/400 rgba(";
  expectLooks(textButton(ui::BorderedButtonStyle{}), {37, 23},
              {{light, away, "fill rgba(0 0 0 0.09)" + rim + "0 0 0 0.85)"},
               {light, pressing, "fill rgba(0 0 0 0.16)" + rim + "0 0 0 0.85)"},
               {dark, away, "fill rgba(1 1 1 0.2)" + darkRim + "1 1 1 0.85)"},
               {dark, pressing, "fill rgba(1 1 1 0.26)" + darkRim + "1 1 1 0.85)"}});
  const ui::View standard =
      textButton(ui::BorderedButtonStyle{}).keyboardShortcut(ui::KeyboardShortcut::defaultAction());
  expectLooks(standard, {37, 23},
              {{light, away, "fill rgba(0 0.478 1 1)" + rim + "1 1 1 1)"},
               {light, pressing, "fill rgba(0 0.478 1 0.8)" + rim + "1 1 1 1)"}});
  expectLooks(standard.disabled(true), {37, 23},
              {{light, away, "fill rgba(0 0 0 0.09)" + rim + "0 0 0 0.85)"}});
}

TEST_F(ComponentLookTest, ADisabledControlIsFainter) {
  const auto opacityOf = [this](const ui::View& view) {
    show(view.disabled(true), {200, 60});
    return lastNumberAfter(" opacity ");
  };
  EXPECT_EQ(opacityOf(textButton(PrimaryActionButtonStyle{.tint = ui::Color::red()})), 0.5);
  EXPECT_EQ(opacityOf(textButton(SecondaryActionButtonStyle{})), 0.5);
  EXPECT_EQ(opacityOf(symbolButton("gearshape", 34, TitleBarIconButtonStyle{})), 0.5);
  EXPECT_EQ(opacityOf(textButton(ui::BorderedButtonStyle{})), 0.45);
  EXPECT_EQ(opacityOf(textButton(ui::PlainButtonStyle{})), 0.45);
  EXPECT_EQ(opacityOf(ui::Picker{"Language", {"English"}, 0, {}}), 0.45);
  show(textButton(ui::PlainButtonStyle{}), {200, 60});
  hold({100, 30});
  EXPECT_EQ(lastNumberAfter(" opacity "), 0.7);
}

// A character of the synthetic font is half as wide as the font's size.
TEST_F(ComponentLookTest, LayoutOfEachComponent) {
  const auto expectCalls = [this](const ui::View& view, ui::Size size,
                                  const std::vector<std::string>& calls) {
    show(view, size);
    for (const std::string& call : calls) {
      EXPECT_TRUE(draws(call)) << call << " is not in\n" << drawing();
    }
  };
  expectCalls(textButton(PrimaryActionButtonStyle{.tint = ui::Color::red()}), {200, 60},
              {"fill rounded(0 11 200 38 r8 continuous)"});
  expectCalls(textButton(SecondaryActionButtonStyle{}), {200, 60},
              {"fill rounded(0 13 200 34 r8 continuous)", "stroke rounded(0 13 200 34 r8 "});
  expectCalls(textButton(SettingsSecondaryButtonStyle{}), {35, 25},
              {"fill rounded(0 0 35 25 r8 continuous)", " at 11 16\n"});
  expectCalls(textButton(ui::BorderedButtonStyle{}), {37, 23},
              {"fill rounded(0 0 37 23 r6 continuous)", " at 12 15\n"});
  expectCalls(ui::Picker{"Language", {"English"}, 0, {}}, {160, 22},
              {"fill rounded(0 0 160 22 r5 continuous)", " at 8 14\n", " (145 7 9 9)\n"});
  expectCalls(DockPanel{.content = ui::Text("12345").fixedSize()}, {300, 101},
              {"fill rounded(0 24 300 53 r12 continuous)", " at 134 54\n"});
  expectCalls(PanelIcon{.systemImage = "lock", .tint = ui::Color::red()}, {60, 60},
              {"fill rounded(6 6 48 48 r11 continuous)", " (18 18 24 24)\n"});
  expectCalls(StatusPill{.text = "Pinned", .isActive = true}, {200, 60},
              {"fill capsule(68 14 65 32)", " at 81 33\n"});
  expectCalls(
      card(false), {200, 160},
      {"fill rounded(12 9 176 142 r12 continuous)",
       "stroke rounded(12.4 9.4 175.2 141.2 r11.6 continuous)", " at 81 113\n", " at 67 130\n"});
  expectCalls(card(true), {200, 160}, {"fill ellipse(160 17 20 20)"});
  expectCalls(TrafficLightButton::close(true, "Close", [] {}), {14, 14},
              {"fill ellipse(0 0 14 14)", "symbol xmark "});
  expectCalls(TrafficLightButton::minimise(true, "Minimise", [] {}), {14, 14}, {"symbol minus "});
  // The header of 17 points is 12 above the content, its title after a symbol of 20 and a gap of 8.
  expectCalls(section(), {400, 120},
              {"fill rounded(0 32 400 56 r10 continuous)",
               "stroke rounded(0.4 32.4 399.2 55.2 r9.6 continuous)", " (17 40 15 15)\n",
               "text \"Title\" 14/700 rgba(0 0 0 0.85) at 42 51\n", " at 14 78\n"});
}

/// Blends the upper and lower ends of all fills over a background.
class FillEnds : public ui::RecordingCanvas {
 public:
  explicit FillEnds(double grey) : upper{grey, grey, grey, 1}, lower(upper) {}

  void fill(const ui::Shape& /*shape*/, const ui::Paint& paint) override {
    blend(upper, paint.stops.front().color);
    blend(lower, paint.stops.back().color);
  }

  ui::Rgba upper;
  ui::Rgba lower;

 private:
  static void blend(ui::Rgba& below, const ui::Rgba& color) {
    below.red += (color.red - below.red) * color.alpha;
    below.green += (color.green - below.green) * color.alpha;
    below.blue += (color.blue - below.blue) * color.alpha;
  }
};

TEST_F(ComponentLookTest, APanelsIconIsLitFromAboveOnAnyBackground) {
  for (const bool isDark : {false, true}) {
    for (const ui::Color& tint : {ui::Color::accent(), ui::Color::gray()}) {
      show(PanelIcon{.systemImage = "lock", .tint = tint}, {48, 48});
      appear(isDark);
      for (const double background : {0.0, 0.5, 1.0}) {
        FillEnds ends(background);
        test.host->paint(ends, {0, 0, 48, 48});
        EXPECT_GT(luminance(ends.upper), luminance(ends.lower) * 1.2) << isDark << background;
      }
    }
  }
}

}  // namespace
}  // namespace orvane
