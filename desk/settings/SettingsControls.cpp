// Controls that look different in dark mode are views of their own.
#include "desk/settings/SettingsControls.hpp"

#include <array>
#include <cstddef>
#include <utility>

#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/Image.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "desk/settings/AccessibilityList.hpp"
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
      .style(BareButtonStyle{})
      .accessibilityLabel(settings.language().text("Back", "返回"));
}

struct SettingsGroup {
  std::vector<View> rows;
  double hairlineInset;
  bool isHighlighted;

  View body(const Environment& environment) const {
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
};

struct SettingsSwitch {
  std::string label;
  bool isOn;
  std::function<void()> onToggle;

  View body(const Environment& environment) const {
    // The dimensions of the system's small switch.
    constexpr double width = 26;
    constexpr double height = 15;
    constexpr double rim = 1;
    const Color off =
        environment.isDark() ? Color::white().opacity(0.22) : Color::black().opacity(0.15);
    const View knob =
        Circle()
            .fill(Color::white())
            .castShadow({.color = Color::black().opacity(0.25), .radius = 1.5, .y = 0.5})
            .frame(height - 2 * rim, height - 2 * rim)
            .padding(rim);
    const View track = Capsule().fill(isOn ? Color::accent() : off);
    const View drawing = ZStack(isOn ? Alignment::trailing() : Alignment::leading(), {track, knob})
                             .frame(width, height)
                             .animation(Curve::easeInOut(0.15), isOn);
    return Button(onToggle, drawing)
        .style(BareButtonStyle{})
        .focusRing(Shape::capsule())
        .accessibilityRole(Role::toggle)
        .accessibilityLabel(label)
        .accessibilityValue(isOn ? "1" : "0");
  }
};

struct ApplicationBadge {
  const char* name;
  const char* symbol;
  Color color;
};

/// Orvane has its own icon; the other applications have a badge.
struct ApplicationIcon {
  std::string name;
  double side;

  View body(const Environment& environment) const {
    if (name == AccessibilityList::orvane && environment.hasImage("AppIcon")) {
      return Image("AppIcon").resizable().frame(side, side);
    }
    // The grid of the Mac's icons leaves a margin of a tenth around the plate.
    const double plate = side * 0.8;
    for (const ApplicationBadge& badge :
         {ApplicationBadge{AccessibilityList::orvane, "dock.rectangle", Color::accent()},
          {"Pointer Lens", "magnifyingglass", Color::orange()},
          {"Remote Help", "lifepreserver", Color::green()},
          {"Text Macros", "keyboard", Color::gray()}}) {
      if (name == badge.name) {
        return settingsBadge(badge.symbol, badge.color, plate).frame(side, side);
      }
    }
    return settingsBadge("macwindow", Color::blue(), plate).frame(side, side);
  }
};

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

View settingsGroup(std::vector<View> rows, double hairlineInset, bool isHighlighted) {
  return SettingsGroup{std::move(rows), hairlineInset, isHighlighted};
}

View settingsSwitch(const std::string& label, bool isOn, std::function<void()> onToggle) {
  return SettingsSwitch{label, isOn, std::move(onToggle)};
}

View settingsBadge(const std::string& symbol, const Color& color, double side) {
  return Symbol(symbol)
      .font(Font::system(side * 0.6, Weight::medium))
      .foreground(Color::white())
      .frame(side, side)
      .background(RoundedRectangle(side * 0.25).fill(Fill::systemGradient(color)))
      .accessibilityHidden();
}

View applicationIcon(const std::string& name, double side) {
  return ApplicationIcon{name, side};
}

}  // namespace orvane::desk
