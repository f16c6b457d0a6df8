// A box of rows with hairlines between them.
#include "desk/settings/SettingsGroup.hpp"

#include <cstddef>

#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"

namespace orvane::desk {

using namespace ui;

View SettingsGroup::body(const Environment& environment) const {
  const Color fill =
      environment.isDark() ? Color::white().opacity(0.045) : Color::black().opacity(0.028);
  const Color rim =
      environment.isDark() ? Color::white().opacity(0.07) : Color::black().opacity(0.07);
  const Color line =
      environment.isDark() ? Color::white().opacity(0.1) : Color::black().opacity(0.09);
  std::vector<View> parts;
  for (std::size_t index = 0; index < rows.size(); ++index) {
    if (index > 0) {
      parts.push_back(Rectangle()
                          .fill(line)
                          .height(1)
                          .padding(Edges{.leading = hairlineInset, .trailing = 10})
                          .accessibilityHidden());
    }
    parts.push_back(rows[index]);
  }
  constexpr double radius = 6;
  return VStack(0, parts).background(RoundedRectangle(radius).fill(fill).strokeBorder(
      isHighlighted ? Color::accent() : rim, isHighlighted ? 2 : 1));
}

}  // namespace orvane::desk
