// The main window's surface and title bar, and the entrance of its panels. The panels themselves
// are in ContentViewPanels.cpp.
#include "Orvane/panels/main/ContentView.hpp"

#include "Orvane/panels/main/OrvanePalette.hpp"
#include "Orvane/panels/main/TitleBarIconButtonStyle.hpp"
#include "Orvane/panels/main/TrafficLightButton.hpp"
#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/Image.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "Orvane/windows/OrvaneWindow.hpp"

namespace orvane {

using namespace ui;

namespace {

constexpr double titleBarHeight = 66;
constexpr double clusterWidth = 150;
constexpr double clusterPadding = 28;
constexpr double trafficLightSpacing = 9;
constexpr double topHighlightHeight = 150;
constexpr double entranceOffset = 10;
constexpr double entranceSeconds = 0.32;

}  // namespace

View ContentView::windowBackground(bool isDark) const {
  const View highlight = Rectangle()
                             .fill(OrvanePalette::windowTopHighlight(isDark))
                             .height(topHighlightHeight)
                             .clip(Shape::rectangle());
  return RoundedRectangle(OrvaneWindow::cornerRadius)
      .fill(OrvanePalette::windowGradient(isDark))
      .stroke(OrvanePalette::windowRim(isDark), 1)
      .overlay(highlight, Alignment::top())
      .clip(Shape::rounded(OrvaneWindow::cornerRadius));
}

View ContentView::trafficLights(const Environment& environment) const {
  const State<bool> isHovered = environment.state("isTrafficLightsHovered", false);
  // Without a system title bar the window does not handle these keys.
  const View close = View(TrafficLightButton::close(
                              isHovered.value(), model->localized("Close", "关闭"), actions.close))
                         .keyboardShortcut(KeyboardShortcut::command("w"));
  const View minimise =
      View(TrafficLightButton::minimise(isHovered.value(), model->localized("Minimise", "最小化"),
                                        actions.minimise))
          .keyboardShortcut(KeyboardShortcut::command("m"));
  return HStack(trafficLightSpacing, {close, minimise})
      .padding({.leading = clusterPadding})
      .frame(clusterWidth, titleBarHeight, Alignment::leading())
      .onHover([isHovered](bool isInside) { isHovered.set(isInside); });
}

View ContentView::appIcon(const Environment& environment) const {
  if (environment.hasImage("AppIcon")) {
    return Image("AppIcon")
        .resizable()
        .frame(22, 22)
        .clip(Shape::rounded(5))
        .shadow({.color = Color::accent().opacity(0.22), .radius = 4, .y = 1});
  }
  return Symbol("dock.rectangle")
      .font(Font::system(16, Weight::semibold))
      .foreground(Color::accent())
      .frame(22, 22);
}

View ContentView::settingsButton() const {
  const std::string title = model->localized("Settings", "设置");
  return Button(actions.showSettings,
                Symbol("gearshape").font(Font::system(18, Weight::semibold)).frame(34, 34))
      .style(TitleBarIconButtonStyle{})
      .focusRing(Shape::rounded(TitleBarIconButtonStyle::cornerRadius))
      .tooltip(title)
      .accessibilityLabel(title);
}

View ContentView::titleBar(const Environment& environment) const {
  const View title = HStack(9, {appIcon(environment), Text("Orvane")
                                                          .font(Font::system(18, Weight::semibold))
                                                          .fixedSize()
                                                          .accessibilityRole(Role::heading)});
  return HStack(0, {trafficLights(environment), Spacer(), title, Spacer(),
                    settingsButton()
                        .padding({.trailing = clusterPadding})
                        .frame({.width = clusterWidth, .alignment = Alignment::trailing()})})
      .maximumWidth()
      .height(titleBarHeight);
}

View ContentView::body(const Environment& environment) const {
  const State<bool> hasAppeared = environment.state("hasAppeared", false);
  // When one change triggers several of these animations, the innermost runs: a selection or mode
  // that changes together with the status follows the status's curve. The entrance is outside of
  // all three and keeps its own curve, even if the refresh below triggers one of them.
  const View content =
      panels()
          .animation(Curve::easeInOut(0.22), model->status())
          .animation(Curve::spring(0.28, 0.86), model->selectedDisplayID().value())
          .animation(Curve::spring(0.28, 0.86), model->hidesDockOnAllDisplays().value())
          .opacity(hasAppeared.value() ? 1 : 0)
          .offset(0, hasAppeared.value() ? 0 : entranceOffset);
  return VStack(0, {titleBar(environment), Spacer(), content})
      .frame(OrvaneWindow::contentSize.width, OrvaneWindow::contentSize.height)
      .background(windowBackground(environment.isDark()))
      .onAppear([model = model, hasAppeared] {
        model->refreshDisplays();
        hasAppeared.set(true, Curve::easeOut(entranceSeconds));
      });
}

}  // namespace orvane
