// A capsule with a word that says whether a mode is on.
#include "Orvane/panels/main/StatusPill.hpp"

#include "Orvane/panels/main/OrvanePalette.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Text.hpp"

namespace orvane {

using namespace ui;

namespace {

double activeOpacity(bool isDark) {
  return isDark ? 0.24 : 0.14;
}

Color capsuleFill(bool isActive, bool isDark) {
  if (isActive) {
    return Color::accent().opacity(activeOpacity(isDark));
  }
  return isDark ? Color::white().opacity(0.095) : Color::black().opacity(0.05);
}

}  // namespace

View StatusPill::body(const Environment& environment) const {
  const bool isDark = environment.isDark();
  return Text(text)
      .font(Font::system(13, Weight::bold))
      .foreground(isActive ? OrvanePalette::accentText(isDark, activeOpacity(isDark))
                           : Color::secondary())
      .lineHeight(16)
      .fixedSize()
      .padding(Edges::symmetric(13, 8))
      .background(
          Capsule()
              .fill(capsuleFill(isActive, isDark))
              .stroke(OrvanePalette::outline(OrvanePalette::panelRim(isDark), environment), 0.7));
}

}  // namespace orvane
