// The two panels of the main window: one pins the Dock to a display, the other prevents it from
// popping up.
#include <algorithm>
#include <iterator>
#include <optional>

#include "Orvane/panels/main/ContentView.hpp"
#include "Orvane/panels/main/DisplayCardTexts.hpp"
#include "Orvane/panels/main/DisplayChoiceCard.hpp"
#include "Orvane/panels/main/DockPanel.hpp"
#include "Orvane/panels/main/OrvanePalette.hpp"
#include "Orvane/panels/main/PanelIcon.hpp"
#include "Orvane/panels/main/PrimaryActionButtonStyle.hpp"
#include "Orvane/panels/main/SecondaryActionButtonStyle.hpp"
#include "Orvane/panels/main/StatusPill.hpp"
#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/Image.hpp"
#include "Orvane/ui/views/ScrollView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"

namespace orvane {

using namespace ui;

namespace {

constexpr double panelSpacing = 10;
constexpr Edges panelsPadding{.top = 15, .leading = 25, .bottom = 25, .trailing = 25};
constexpr double pinPanelHeight = 269;
constexpr double popUpPanelHeight = 121;
/// Distributes the free height of the pin panel evenly: 10.5 points above the icon and below the
/// button, 10 above and below the cards, 6 of which are within the picker.
constexpr double pinPanelRowSpacing = 4;
/// Leaves the same 10.5 points above the icon and below the button.
constexpr double popUpPanelRowSpacing = 18;
constexpr double headerHeight = 48;
constexpr double pickerHeight = 154;
constexpr double cardSpacing = 14;
/// How far the picker extends beyond the panel's content on both sides, so that it clips cards only
/// at the panel's edges.
constexpr double pickerOverhang = DockPanel::padding - 1;
constexpr double headerSpacing = 14;
constexpr double titleLineHeight = 22;
constexpr double descriptionLineHeight = 16;
constexpr double titleToDescription = 2;
/// Less than available, so that no line of the hint consists of a single word.
constexpr double descriptionWidth = 400;
constexpr double buttonSpacing = 10;
constexpr double dockSettingsWidth = 190;

/// A button's label. Another symbol replaces it with a transition, centred even while the button's
/// width changes.
View fadingLabel(const std::string& symbol, const std::string& text) {
  return HStack(7, {Symbol(symbol), Text(text).lineLimit(1)})
      .fixedSize()
      .transition(Transition::fadeThrough())
      .id(symbol)
      .frame(0, 0);
}

struct HeaderTexts {
  std::string title;
  std::string description;
  /// A hint and a description have different identities, so that one fades into the other.
  bool isHint = false;
};

View header(const PanelIcon& icon, const HeaderTexts& content, const StatusPill& pill) {
  const View title = Text(content.title)
                         .font(Font::system(18, Weight::bold))
                         .lineHeight(titleLineHeight)
                         .accessibilityRole(Role::heading);
  const View description = Text(content.description)
                               .font(Font::system(13))
                               .lineHeight(descriptionLineHeight)
                               .foreground(Color::secondary())
                               .fixedSizeVertical()
                               .transition(Transition::fadeThrough())
                               .id(std::to_string(content.isHint));
  // A second line of the description overflows the row instead of moving the title.
  const View texts = VStack(titleToDescription, HorizontalAlignment::leading,
                            {title, description.frame({.height = descriptionLineHeight,
                                                       .maximumWidth = descriptionWidth,
                                                       .alignment = Alignment::topLeading()})});
  // The label tells a screen reader which mode the pill is about. The identity makes one state fade
  // into the other.
  const View status = View(pill)
                          .accessibilityLabel(content.title)
                          .accessibilityValue(pill.text)
                          .transition(Transition::fadeThrough())
                          .id(std::to_string(pill.isActive));
  return HStack(headerSpacing, {icon, texts, Spacer(), status}).height(headerHeight);
}

/// The rows are slightly higher than the panel's content area: they overflow it evenly above and
/// below instead of shrinking.
View panel(double height, const View& rows) {
  return DockPanel{.content = rows.fixedSizeVertical().height(height - 2 * DockPanel::padding)};
}

}  // namespace

View ContentView::panels() const {
  return VStack(panelSpacing, {lockDockPanel(), hideDockPanel()}).padding(panelsPadding);
}

View ContentView::lockDockPanel() const {
  const bool isPinned = model->mode() == OrvaneMode::pinning;
  const View head =
      header({.systemImage = "lock", .tint = Color::accent()},
             {.title = model->localized("Pin Dock to a Display", "固定 Dock 到指定显示器"),
              .description = model->localized("Dock stays on the selected display",
                                              "Dock 固定在选中的显示器")},
             {.text = isPinned ? model->localized("Pinned", "已固定")
                               : model->localized("Not Pinned", "未固定"),
              .isActive = isPinned});
  return panel(pinPanelHeight, VStack(pinPanelRowSpacing, {head, displayPicker(), pinButton()}));
}

View ContentView::displayPicker() const {
  const std::vector<DisplaySnapshot>& displays = model->displays().value();
  const OrvaneLanguage language = model->appLanguage().value();
  const auto card = [&](const DisplaySnapshot& display, std::size_t position) {
    const bool isSelected = model->selectedDisplayID().value() == display.id;
    return View(DisplayChoiceCard{
                    .display = display,
                    .fallbackLabel = DisplayCardTexts::fallbackLabel(position, language),
                    .roleLabel = DisplayCardTexts::roleLabel(display, displays, language),
                    .isSelected = isSelected,
                    .action = [model = model, id = display.id] { model->selectDisplay(id); },
                })
        .scrollsIntoView(isSelected, position);
  };
  const auto identify = [](const DisplaySnapshot& display) { return display.id; };
  std::vector<std::string> order;
  std::ranges::transform(displays, std::back_inserter(order), identify);
  const View cards = HStack(cardSpacing, forEach(displays, identify, card));
  // A fixed position, so that the first cards to appear do not move.
  constexpr double cardMargin = (pickerHeight - DisplayChoiceCard::height) / 2;
  // Reordered cards jump: animated, they would pass over one another.
  return ScrollView(cards.padding(Edges::vertical(cardMargin))
                        .height(pickerHeight, Alignment::top())
                        .animation(std::nullopt, order),
                    pickerOverhang)
      .height(pickerHeight)
      .padding(Edges::horizontal(-pickerOverhang));
}

View ContentView::pinButton() const {
  const bool isPinned = model->mode() == OrvaneMode::pinning;
  const View label = isPinned
                         ? fadingLabel("lock.open", model->localized("Unpin Dock", "解除固定 Dock"))
                         : fadingLabel("lock", model->localized("Pin Dock", "固定 Dock"));
  return Button([model = model] { model->toggleSelectedDisplayLock(); }, label)
      .style(PrimaryActionButtonStyle{.tint = isPinned ? Color::red() : Color::accent()})
      .focusRing(Shape::rounded(PrimaryActionButtonStyle::cornerRadius))
      .disabled(!model->selectedDisplayID().value().has_value());
}

View ContentView::hideDockPanel() const {
  const bool isPreventing = model->mode() == OrvaneMode::preventing;
  const std::string description =
      isPreventing
          ? model->localized(
                "If the Dock is still visible, manually enable “Automatically hide and show "
                "the Dock”",
                "如果你还看得到 Dock 栏，需要手动开启“自动隐藏和显示程序坞”")
          : model->localized("Prevents screen edges from bringing up the Dock",
                             "阻止屏幕边缘触发 Dock 弹出");
  const View head =
      header({.systemImage = "eye.slash", .tint = isPreventing ? Color::accent() : Color::gray()},
             {.title = model->localized("Prevent Dock Pop-Up", "防止 Dock 弹出"),
              .description = description,
              .isHint = isPreventing},
             {.text = isPreventing ? model->localized("Enabled", "已启用")
                                   : model->localized("Off", "未启用"),
              .isActive = isPreventing});
  return panel(popUpPanelHeight, VStack(popUpPanelRowSpacing, {head, popUpButtons()}));
}

View ContentView::popUpButtons() const {
  const bool isPreventing = model->mode() == OrvaneMode::preventing;
  const View toggleLabel =
      isPreventing
          ? fadingLabel("eye", model->localized("Allow Dock Pop-Up", "允许 Dock 弹出"))
          : fadingLabel("eye.slash", model->localized("Prevent Dock Pop-Up", "防止 Dock 弹出"));
  const Shape ring = Shape::rounded(SecondaryActionButtonStyle::cornerRadius);
  const View toggle = Button([model = model] { model->toggleHideDockOnAllDisplays(); }, toggleLabel)
                          .style(SecondaryActionButtonStyle{})
                          .focusRing(ring);
  const auto openSettings = [&] {
    return Button(
               [] { DockMouseGuard::openDesktopAndDockSettings(); },
               fadingLabel("gearshape", model->localized("Open Dock Settings", "打开 Dock 设置")))
        .style(SecondaryActionButtonStyle{})
        .focusRing(ring)
        .width(dockSettingsWidth)
        .transition({.absentOpacity = 0, .absentOffset = 1});
  };
  // The settings button slides in from the panel's edge, where the clip ends. On the other sides
  // the clip leaves room for the outlines of the buttons.
  constexpr double outlineRoom = 1;
  const Edges clipMargin{.top = outlineRoom,
                         .leading = outlineRoom,
                         .bottom = outlineRoom,
                         .trailing = DockPanel::padding};
  const Edges undoMargin{.top = -outlineRoom,
                         .leading = -outlineRoom,
                         .bottom = -outlineRoom,
                         .trailing = -DockPanel::padding};
  return HStack(buttonSpacing, {toggle, when(isPreventing, openSettings)})
      .padding(clipMargin)
      .clip(Shape::rectangle())
      .padding(undoMargin);
}

}  // namespace orvane
