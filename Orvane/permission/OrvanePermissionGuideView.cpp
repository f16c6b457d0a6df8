// The card that shows what to turn on in System Settings, and the progress.
#include "Orvane/permission/OrvanePermissionGuideView.hpp"

#include <string>
#include <string_view>

#include "Orvane/model/OrvaneLanguage.hpp"
#include "Orvane/permission/OrvaneDraggableAppIconView.hpp"
#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/Image.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"

namespace orvane {

using namespace ui;

namespace {

/// The application's icon under an arrow that points at it.
View draggableIcon() {
  const View arrow = Symbol("arrow.down")
                         .font(Font::system(24, Weight::semibold))
                         .foreground(Color::orange())
                         .height(30)
                         .padding({.bottom = 14});
  const View icon = View(OrvaneDraggableAppIconView{})
                        .frame(82, 82)
                        .shadow({.color = Color::black().opacity(0.33), .radius = 5});
  return VStack(0, {arrow, icon});
}

View checkMark() {
  return Symbol("checkmark.circle.fill").font(Font::system(60)).foreground(Color::green());
}

}  // namespace

View OrvanePermissionGuideView::closeControl() const {
  const View closeButton =
      Button(onClose,
             Symbol("xmark.circle.fill").font(Font::title()).foreground(Color::secondary()))
          .style(PlainButtonStyle{})
          .outOfTabOrder()
          .keyboardShortcut(KeyboardShortcut::cancelAction())
          .accessibilityLabel(localized("Close", "关闭"));
  return HStack(0, {Spacer(), closeButton}).padding(Edges{.top = 16, .trailing = 16});
}

View OrvanePermissionGuideView::iconArea() const {
  // Both fill the same area, so that neither moves during the transition.
  const auto filled = [](const View& content, const Transition& transition) {
    return content.frame({.height = 136, .maximumWidth = infinity}).transition(transition);
  };
  const bool isDone = state == PermissionGuideState::success;
  return ZStack({when(!isDone, [&] { return filled(draggableIcon(), Transition::opacity()); }),
                 when(isDone,
                      [&] { return filled(checkMark(), {.absentOpacity = 0, .absentScale = 0}); })})
      .padding(Edges::vertical(10));
}

View OrvanePermissionGuideView::statusLine(bool isDark) const {
  // Unlike the accent colour, these are not the user's choice, so they need the full contrast on
  // the window's background. They have it on a dark one.
  const auto readable = [isDark](const Color& color) {
    return isDark ? color : color.textOn(0.8, 0, 4.5);
  };
  // Each state has its own line, so that one fades into the other. A single line would be clipped
  // during the change.
  static constexpr double lineHeight = 34;
  const auto line = [this](PermissionGuideState shownIn, const std::string& text, const Font& font,
                           const Color& color) {
    return when(state == shownIn, [&] {
      return Text(text)
          .font(font)
          .foreground(color)
          .textAlignment(HorizontalAlignment::center)
          .frame({.height = lineHeight, .maximumWidth = infinity})
          .transition(Transition::fadeThrough());
    });
  };
  return ZStack({line(PermissionGuideState::checking,
                      localized("Waiting for permission in System Settings",
                                "正在等待你在系统设置中完成授权"),
                      Font::caption(), Color::secondary()),
                 line(PermissionGuideState::timeout,
                      localized("Permission not detected yet. Make sure Orvane is enabled in "
                                "Accessibility.",
                                "暂未检测到权限，请确认 Orvane 已在“辅助功能”列表中开启"),
                      Font::caption(), readable(Color::orange())),
                 line(PermissionGuideState::success, localized("Permission Enabled", "权限已开启"),
                      Font::headline(), readable(Color::green()))})
      .padding(Edges::horizontal(22));
}

View OrvanePermissionGuideView::doneButton() const {
  const View label = Text(localized("Done", "完成"))
                         .font(Font::headline())
                         .maximumWidth()
                         .padding(Edges::vertical(10));
  return Button(onClose, label)
      .keyboardShortcut(KeyboardShortcut::defaultAction())
      .padding(Edges{.leading = 40, .bottom = 20, .trailing = 40});
}

View OrvanePermissionGuideView::body(const Environment& environment) const {
  constexpr double cornerRadius = 12;
  const View title = Text(localized("Next Step", "下一步"))
                         .font(Font::title2().bold())
                         .accessibilityRole(Role::heading);
  const View instruction =
      Text(localized("In Privacy & Security > Accessibility, turn on Orvane. If Orvane is not "
                     "listed, click \"+\" to add it, or drag the icon below into the list.",
                     "在“隐私与安全性”>“辅助功能”中，为 Orvane 打开开关。如果列表里没有 "
                     "Orvane，可点“+”添加应用，或将下方图标拖入列表。"))
          .font(Font::body())
          .foreground(Color::secondary())
          .textAlignment(HorizontalAlignment::center)
          .fixedSizeVertical()
          .padding(Edges::horizontal(defaultPadding));
  const View card = VStack(22, {closeControl(), title, instruction, iconArea(),
                                statusLine(environment.isDark()), doneButton()});
  return card.frame(width, height)
      .background(RoundedRectangle(cornerRadius)
                      .fill(Color::windowBackground())
                      .strokeBorder(Color::secondary().opacity(0.2), 1))
      .animation(Curve::spring(0.5, 1.0), state);
}

}  // namespace orvane
