// The layout that all pages of System Settings share.
#include "desk/settings/TitledPage.hpp"

#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/Image.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "desk/settings/SettingsButtonStyle.hpp"
#include "desk/settings/SystemSettings.hpp"
#include "desk/windows/DeskWindow.hpp"

namespace orvane::desk {

using namespace ui;

namespace {

/// Nothing for a page without a parent.
View backButton(SystemSettings& settings) {
  const SettingsPage* const parent = settings.parentPage();
  if (parent == nullptr) {
    return {};
  }
  const View chevron = Symbol("chevron.left").font(Font::system(15, Weight::medium)).frame(20, 24);
  return Button([&settings, name = parent->name] { settings.goTo(name); }, chevron)
      .style(SettingsButtonStyle{})
      .accessibilityLabel(settings.language().text("Back", "返回"));
}

}  // namespace

View titledPage(SystemSettings& settings, const std::string& title, const View& content) {
  constexpr double margin = 20;
  const View heading =
      Text(title).font(Font::title3().bold()).lineLimit(1).accessibilityRole(Role::heading);
  const View titleBar = HStack(8, {backButton(settings), heading, Spacer()})
                            .padding(Edges::horizontal(margin))
                            .height(DeskWindow::tallTitleBarHeight);
  return VStack(0, HorizontalAlignment::leading,
                {titleBar, content.padding(Edges::horizontal(margin))});
}

}  // namespace orvane::desk
