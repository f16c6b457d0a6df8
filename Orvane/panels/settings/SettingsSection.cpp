// A card of the settings panel.
#include "Orvane/panels/settings/SettingsSection.hpp"

#include "Orvane/panels/main/OrvanePalette.hpp"
#include "Orvane/ui/views/Image.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"

namespace orvane {

using namespace ui;

namespace {

constexpr double cornerRadius = 10;
constexpr double rowSpacing = 12;
constexpr double headerSpacing = 8;
/// The header is as high as its title; the symbols differ in height.
constexpr double symbolWidth = 20;
constexpr double titleHeight = 17;
/// Small above and below, because four cards must fit into the panel.
constexpr Edges cardPadding{.top = 7, .leading = 14, .bottom = 7, .trailing = 14};
constexpr double hoverSeconds = 0.16;

double borderOpacity(bool isDark, bool isHovered) {
  if (isDark) {
    return isHovered ? 0.38 : 0.24;
  }
  return isHovered ? 0.26 : 0.14;
}

double tintShadowOpacity(bool isDark, bool isHovered) {
  if (isDark) {
    return isHovered ? 0.16 : 0.08;
  }
  return isHovered ? 0.12 : 0.06;
}

double blackShadowOpacity(bool isDark, bool isHovered) {
  if (isDark) {
    return isHovered ? 0.18 : 0.12;
  }
  return isHovered ? 0.045 : 0.025;
}

}  // namespace

View SettingsSection::body(const Environment& environment) const {
  const State<bool> hover = environment.state("isHovered", false);
  const bool isHovered = hover.value();
  const bool isDark = environment.isDark();

  const View header = HStack(headerSpacing, {Symbol(systemImage)
                                                 .font(Font::system(15, Weight::semibold))
                                                 .foreground(tint)
                                                 .frame(symbolWidth, titleHeight)
                                                 .scale(isHovered ? 1.06 : 1),
                                             Text(title)
                                                 .font(Font::system(14, Weight::bold))
                                                 .lineHeight(titleHeight)
                                                 .accessibilityRole(Role::heading)});
  const double shadowRadius = isHovered ? 12 : 8;
  const double shadowOffset = isHovered ? 5 : 3;
  const View surface =
      RoundedRectangle(cornerRadius)
          .castShadow({.color = tint.opacity(tintShadowOpacity(isDark, isHovered)),
                       .radius = shadowRadius,
                       .y = shadowOffset})
          .castShadow({.color = Color::black().opacity(blackShadowOpacity(isDark, isHovered)),
                       .radius = shadowRadius,
                       .y = shadowOffset})
          .fill(Color::white().opacity(isDark ? 0.045 : 0.5))
          .fill(backgroundTint)
          .stroke(Color::white().opacity(isDark ? 0.22 : 0.38), 1)
          .strokeBorder(
              OrvanePalette::outline(tint.opacity(borderOpacity(isDark, isHovered)), environment),
              0.8);
  return VStack(rowSpacing, HorizontalAlignment::leading,
                {header, content.maximumWidth(infinity, Alignment::leading())})
      .padding(cardPadding)
      .maximumWidth(infinity, Alignment::leading())
      .background(surface)
      .scale(isHovered ? 1.006 : 1)
      .animation(Curve::easeOut(hoverSeconds), isHovered)
      .onHover([hover](bool isInside) { hover.set(isInside); });
}

}  // namespace orvane
