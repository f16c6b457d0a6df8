// A row of the status menu: an icon badge, a title, and an optional switch.
#include "Orvane/app/StatusMenuRow.hpp"

#include "Orvane/app/CompactMenuSwitch.hpp"
#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/Image.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"

namespace orvane {

using namespace ui;

namespace {

constexpr double disabledOpacity = 0.45;
/// A title beside a switch has 117 points. Tightened by this, "Prevent Dock Pop-Up" fits uncut in a
/// font in which it is up to 127 points wide.
constexpr double titleTightening = 0.08;
constexpr double switchSpacing = 3;

}  // namespace

View StatusMenuRow::iconBadge() const {
  Color symbolColor = isSelected ? Color::white() : Color::secondary();
  if (!isEnabled) {
    symbolColor = Color::secondary().opacity(disabledOpacity);
  }
  return Symbol(systemImage)
      .font(Font::system(13, Weight::medium))
      .foreground(symbolColor)
      .frame(24, 24)
      .background(Circle().fill(isSelected ? Color::blue() : Color::tertiary().opacity(0.16)));
}

View StatusMenuRow::content(bool isHovered) const {
  // Rows with a switch show no highlight, on purpose.
  const bool isHighlighted = isHovered && !isOn;
  const View line =
      Text(title)
          .font(Font::system(13, Weight::medium))
          .foreground(isEnabled ? Color::primary() : Color::secondary().opacity(disabledOpacity))
          .lineLimit(1)
          .allowsTightening(titleTightening)
          // The end of the title distinguishes two displays of a kind and marks the main one.
          .truncationMode(TruncationMode::middle)
          .frame({.height = 26, .maximumWidth = infinity, .alignment = Alignment::leading()})
          .padding({.leading = 8});
  const View toggle = isOn ? View(CompactMenuSwitch{*isOn})
                                 .opacity(isEnabled ? 1 : disabledOpacity)
                                 .padding({.leading = switchSpacing})
                           : View();
  return HStack(0, {iconBadge(), line, toggle})
      .padding(Edges{.leading = 14, .trailing = 8})
      .frame(rowWidth, rowHeight)
      .background(RoundedRectangle(6)
                      .fill(isHighlighted ? Color::primary().opacity(0.08) : Color::clear())
                      .padding(Edges::symmetric(3, 2)));
}

View StatusMenuRow::body(const Environment& environment) const {
  const State<bool> isHovered = environment.state("isHovered", false);
  const View row = Button(
                       [action = action] {
                         if (action) {
                           action();
                         }
                       },
                       content(isHovered.value()))
                       .style(BareButtonStyle{})
                       .focusRing(Shape::rounded(6))
                       .onHover([isHovered](bool isInside) { isHovered.set(isInside); })
                       .disabled(!isEnabled)
                       .accessibilityLabel(title);
  if (isOn) {
    return row.accessibilityRole(Role::toggle).accessibilityValue(*isOn ? "1" : "0");
  }
  return isSelected ? row.accessibilitySelected(true) : row;
}

}  // namespace orvane
