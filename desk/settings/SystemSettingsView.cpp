// The sidebar is drawn on the window's glass, the page on the window's background.
#include "desk/settings/SystemSettingsView.hpp"

#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "desk/settings/ApplicationChooser.hpp"
#include "desk/settings/SystemSettings.hpp"

namespace orvane::desk {

using namespace ui;

View SystemSettingsView::body(const Environment& environment) const {
  constexpr double sidebarWidth = 215;
  const bool isChoosing = settings->state().isChoosing;
  const Color edge =
      environment.isDark() ? Color::black().opacity(0.5) : Color::black().opacity(0.1);
  const View sidebar = settings->sidebarView().frame(
      {.width = sidebarWidth, .maximumHeight = infinity, .alignment = Alignment::top()});
  const View detail =
      settings->pageView()
          .frame(
              {.maximumWidth = infinity, .maximumHeight = infinity, .alignment = Alignment::top()})
          .background(Rectangle().fill(Color::windowBackground()));
  const View content =
      HStack(0, {sidebar, Rectangle().fill(edge).width(1), detail}).disabled(isChoosing);
  return ZStack(Alignment::top(),
                {content, when(isChoosing, [&] { return ApplicationChooser{settings}; })})
      .frame(SystemSettings::width, SystemSettings::height);
}

}  // namespace orvane::desk
