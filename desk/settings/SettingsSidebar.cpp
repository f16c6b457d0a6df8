// The rows keep clear of the window's buttons above them.
#include "desk/settings/SettingsSidebar.hpp"

#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "desk/settings/SettingsBadge.hpp"
#include "desk/settings/SettingsButtonStyle.hpp"
#include "desk/settings/SystemSettings.hpp"
#include "desk/windows/DeskWindow.hpp"

namespace orvane::desk {

using namespace ui;

View SettingsSidebar::row(SettingsPage page, const std::string& title, const std::string& symbol,
                          const Color& color) const {
  // A page below another one shows as that one.
  const SettingsPage shown = settings->state().page == SettingsPage::accessibility
                                 ? SettingsPage::privacy
                                 : settings->state().page;
  const bool isSelected = shown == page;
  constexpr double rowHeight = 28;
  constexpr double radius = 5;
  const View label =
      HStack(7,
             {SettingsBadge{symbol, color},
              Text(title).foreground(isSelected ? Color::white() : Color::primary()).lineLimit(1),
              Spacer()})
          .padding(Edges::horizontal(8))
          .height(rowHeight)
          .background(RoundedRectangle(radius).fill(isSelected ? Color::accent() : Color::clear()));
  return Button([settings = settings, page] { settings->goTo(page); }, label)
      .style(SettingsButtonStyle{})
      .focusRing(Shape::rounded(radius))
      .accessibilityLabel(title)
      .accessibilityRole(Role::radioButton)
      .accessibilitySelected(isSelected);
}

View SettingsSidebar::body(const Environment& /*environment*/) const {
  constexpr double width = 215;
  const SystemLanguage language = settings->language();
  const View gap = Rectangle().fill(Color::clear()).height(12);
  return VStack(0,
                {row(SettingsPage::general, language.text("General", "通用"), "gearshape.fill",
                     Color::gray()),
                 gap,
                 row(SettingsPage::desktopAndDock, language.text("Desktop & Dock", "桌面与程序坞"),
                     "dock.rectangle", Color::black()),
                 row(SettingsPage::displays, language.text("Displays", "显示器"), "display",
                     Color::blue()),
                 gap,
                 row(SettingsPage::privacy, language.text("Privacy & Security", "隐私与安全性"),
                     "hand.raised", Color::blue())})
      .padding(Edges{.top = DeskWindow::tallTitleBarHeight + 4, .leading = 10, .trailing = 10})
      .frame({.width = width, .maximumHeight = infinity, .alignment = Alignment::top()});
}

}  // namespace orvane::desk
