// A card that shows a display and selects it as the target.
#include "Orvane/panels/main/DisplayChoiceCard.hpp"

#include "Orvane/panels/main/DarkeningButtonStyle.hpp"
#include "Orvane/panels/main/OrvanePalette.hpp"
#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/Image.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"

namespace orvane {

using namespace ui;

namespace {

constexpr double imageToTitle = 6;
constexpr double titleToRole = 2;
constexpr double nameLineHeight = 16;
constexpr double roleLineHeight = 14;
constexpr double sidePadding = 12;
constexpr double imageShadowRadius = 5;
constexpr double imageShadowDrop = 3;
constexpr double hoverSeconds = 0.14;

}  // namespace

const std::string& DisplayChoiceCard::title() const {
  return display.name.empty() ? fallbackLabel : display.name;
}

View DisplayChoiceCard::content(bool isDark) const {
  const Color highlight = OrvanePalette::accentText(isDark);
  const View image = Image(display.isBuiltIn ? "DisplayLaptop" : "DisplayMonitor")
                         .resizable()
                         .frame(122, 70)
                         .shadow({.color = Color::black().opacity(0.06),
                                  .radius = imageShadowRadius,
                                  .y = imageShadowDrop});
  const View name = Text(title())
                        .font(Font::system(13, isSelected ? Weight::bold : Weight::medium))
                        .foreground(isSelected ? highlight : Color::primary())
                        .lineLimit(1)
                        .truncationMode(TruncationMode::middle);
  const View role = Text(roleLabel)
                        .font(Font::system(11, Weight::semibold))
                        .foreground(isSelected ? highlight : Color::secondary())
                        .lineLimit(1);
  // Fixed line heights keep the images and baselines of a row level, whatever scripts the names
  // use.
  const View texts =
      VStack(titleToRole, {name.lineHeight(nameLineHeight), role.lineHeight(roleLineHeight)});
  return VStack(imageToTitle, {image, texts.textAlignment(HorizontalAlignment::center)})
      .padding(Edges::horizontal(sidePadding))
      .frame(width, height);
}

View DisplayChoiceCard::surface(const Environment& environment, bool isRaised) const {
  const bool isDark = environment.isDark();
  const double raisedOpacity = isDark ? 0.14 : 0.2;
  const Color rim = OrvanePalette::outline(OrvanePalette::controlRim(isDark), environment);
  const Color highlight =
      environment.appearance.increaseContrast ? OrvanePalette::accentText(isDark) : Color::accent();
  const Color border = isSelected ? highlight : rim;
  return RoundedRectangle(cornerRadius)
      .fill(Color::white().opacity(isRaised ? raisedOpacity : 0.075))
      .strokeBorder(border, isSelected ? 1.3 : 0.8);
}

View DisplayChoiceCard::checkBadge() const {
  return Symbol("checkmark")
      .font(Font::system(12, Weight::black))
      .foreground(Color::accent().buttonLabel())
      .frame(20, 20)
      .background(Circle().fill(Color::accent()))
      .padding(8)
      .transition({.absentOpacity = 0, .absentScale = 0.82});
}

View DisplayChoiceCard::body(const Environment& environment) const {
  const State<bool> isHovered = environment.state("isHovered", false);
  const bool isRaised = isSelected || isHovered.value();
  const View card =
      content(environment.isDark())
          .background(surface(environment, isRaised))
          .overlay(when(isSelected, [&] { return checkBadge(); }), Alignment::topTrailing());
  return Button([environment,
                 action = action] { environment.animate(Curve::spring(0.24, 0.82), action); },
                card)
      .style(DarkeningButtonStyle{.shape = Shape::rounded(cornerRadius),
                                  .shade = environment.isDark() ? 0.2 : 0.08})
      .focusRing(Shape::rounded(cornerRadius))
      .accessibilityRole(Role::radioButton)
      .accessibilityLabel(title())
      .accessibilityValue(roleLabel)
      .accessibilitySelected(isSelected)
      .scale(isRaised ? 1.012 : 1)
      .animation(Curve::easeOut(hoverSeconds), isHovered.value())
      .onHover([isHovered](bool isInside) { isHovered.set(isInside); });
}

}  // namespace orvane
