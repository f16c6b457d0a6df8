// The settings window's surface and header, and the entrance of its cards. The cards themselves are
// in OrvaneSettingsViewCards.cpp.
#include "Orvane/panels/settings/OrvaneSettingsView.hpp"

#include "Orvane/panels/settings/LoginItemCaption.hpp"
#include "Orvane/panels/settings/SettingsIconButtonStyle.hpp"
#include "Orvane/panels/settings/SettingsPalette.hpp"
#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/Image.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "Orvane/windows/OrvaneSettingsWindow.hpp"

namespace orvane {

using namespace ui;

namespace {

constexpr double tileSide = 30;
constexpr double tileCornerRadius = 8;
constexpr Edges headerPadding{.top = 8, .leading = 18, .bottom = 8, .trailing = 18};
/// Above and below the cards.
constexpr double minimumMargin = 10;
constexpr double entranceOffset = 10;
constexpr double entranceSeconds = 0.24;

View headerTile() {
  return Symbol("gearshape.fill")
      .font(Font::system(18, Weight::semibold))
      .foreground(Color::white())
      .frame(tileSide, tileSide)
      .background(
          RoundedRectangle(tileCornerRadius)
              .castShadow({.color = SettingsPalette::blue().opacity(0.25), .radius = 5, .y = 2})
              .fill(Fill::gradient({SettingsPalette::blue(), SettingsPalette::indigo()},
                                   UnitPoint::topLeading(), UnitPoint::bottomTrailing())));
}

}  // namespace

std::function<void()> OrvaneSettingsView::closeAction(const Environment& environment) const {
  return [onClose = onClose, environment] {
    if (onClose) {
      onClose();
    } else {
      environment.dismiss();
    }
  };
}

View OrvaneSettingsView::hiddenCloseButton(const Environment& environment) const {
  return Button(closeAction(environment), Rectangle().frame(0, 0))
      .keyboardShortcut(KeyboardShortcut::command("w"))
      .opacity(0)
      .accessibilityHidden();
}

View OrvaneSettingsView::header(const Environment& environment) const {
  const std::string closeTitle = model->localized("Close", "关闭");
  const View closeButton =
      Button(closeAction(environment),
             Symbol("xmark").font(Font::system(12, Weight::bold)).frame(28, 28))
          .style(SettingsIconButtonStyle{})
          .outOfTabOrder()
          .keyboardShortcut(KeyboardShortcut::cancelAction())
          .tooltip(closeTitle)
          .accessibilityLabel(closeTitle);
  const LoginItemCaption caption{.model = model};
  return HStack(10, {headerTile(),
                     Text(model->localized("Settings", "设置"))
                         .font(Font::system(17, Weight::bold))
                         .fixedSize()
                         .accessibilityRole(Role::heading),
                     Spacer(), when(caption.isNeeded(), [&] { return caption; }), closeButton})
      .padding(headerPadding)
      .maximumWidth()
      .background(Rectangle().fill(SettingsPalette::headerGradient(environment.isDark())))
      .overlay(Rectangle().fill(SettingsPalette::dividerGradient(environment.isDark())).height(1),
               Alignment::bottom());
}

View OrvaneSettingsView::body(const Environment& environment) const {
  const State<bool> hasAppeared = environment.state("hasAppeared", false);
  const View sections = cards()
                            .opacity(hasAppeared.value() ? 1 : 0)
                            .offset(0, hasAppeared.value() ? 0 : entranceOffset);
  return VStack(0, {header(environment), Spacer(minimumMargin), sections, Spacer(minimumMargin)})
      .frame(OrvaneSettingsWindow::contentSize.width, OrvaneSettingsWindow::contentSize.height)
      .background(hiddenCloseButton(environment))
      .background(Rectangle().fill(SettingsPalette::windowGradient(environment.isDark())))
      .onAppear([model = model, hasAppeared] {
        model->refreshLaunchAtLoginStatus();
        hasAppeared.set(true, Curve::easeOut(entranceSeconds));
      });
}

}  // namespace orvane
