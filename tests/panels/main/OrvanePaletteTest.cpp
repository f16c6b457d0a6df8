// The colours of the main panel's glass.
#include "Orvane/panels/main/OrvanePalette.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "tests/panels/ComponentFixture.hpp"

namespace orvane {
namespace {

class OrvanePaletteTest : public ComponentFixture {
 protected:
  /// What a rectangle draws that is filled by day, and in the dark.
  std::string filled(ui::Gradient (*gradient)(bool), bool isDark) {
    show(ui::Rectangle().fill(gradient(isDark)), {100, 100});
    appear(isDark);
    return drawing();
  }
  static void expectStops(const std::string& drawing, const std::vector<std::string>& stops) {
    std::size_t place = 0;
    for (const std::string& stop : stops) {
      place = drawing.find(stop, place);
      ASSERT_NE(place, std::string::npos) << stop << " in order in\n" << drawing;
      place += stop.size();
    }
  }
};

TEST_F(OrvanePaletteTest, TheWindowsSurface) {
  expectStops(filled(OrvanePalette::windowGradient, true),
              {"rgba(1 1 1 0.07)", "rgba(0.039 0.518 1 0.05)", "rgba(0 0 0 0.16)"});
  expectStops(filled(OrvanePalette::windowGradient, false),
              {"rgba(1 1 1 0.34)", "rgba(0 0.478 1 0.055)", "rgba(1 1 1 0.12)"});
}

// It fades into clear white: towards clear black it would turn grey on its way.
TEST_F(OrvanePaletteTest, TheLightOnTheTopOfTheWindow) {
  expectStops(filled(OrvanePalette::windowTopHighlight, true),
              {"rgba(1 1 1 0.085)", "rgba(1 1 1 0.035)", "rgba(1 1 1 0)"});
  expectStops(filled(OrvanePalette::windowTopHighlight, false),
              {"rgba(1 1 1 0.28)", "rgba(1 1 1 0.12)", "rgba(1 1 1 0)"});
}

TEST_F(OrvanePaletteTest, WhatLiesOverAPanel) {
  expectStops(filled(OrvanePalette::panelOverlayGradient, true),
              {"rgba(1 1 1 0.1)", "rgba(0.039 0.518 1 0.055)", "rgba(0 0 0 0.08)"});
  expectStops(filled(OrvanePalette::panelOverlayGradient, false),
              {"rgba(1 1 1 0.3)", "rgba(1 1 1 0.1)"});
}

}  // namespace
}  // namespace orvane
