// The heading of a section of the status menu.
#include "Orvane/app/StatusMenuSectionHeader.hpp"

#include "Orvane/ui/views/Text.hpp"

namespace orvane {

using namespace ui;

View StatusMenuSectionHeader::body(const Environment& /*environment*/) const {
  return Text(title)
      .font(Font::system(12, Weight::semibold))
      .foreground(Color::secondary())
      .lineLimit(1)
      .padding(Edges{.top = 7, .leading = 14, .bottom = 0, .trailing = 12})
      .frame({.height = height, .maximumWidth = infinity, .alignment = Alignment::topLeading()})
      .accessibilityRole(Role::heading);
}

}  // namespace orvane
