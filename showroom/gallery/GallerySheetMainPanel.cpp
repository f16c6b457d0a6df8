// The components of the main panel.
#include <algorithm>
#include <iterator>

#include "Orvane/panels/main/DisplayChoiceCard.hpp"
#include "Orvane/panels/main/DockPanel.hpp"
#include "Orvane/panels/main/PanelIcon.hpp"
#include "Orvane/panels/main/StatusPill.hpp"
#include "Orvane/panels/main/TrafficLightButton.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "showroom/gallery/GallerySheet.hpp"

namespace orvane::showroom {

namespace {

using ui::Color;
using ui::Font;
using ui::View;
using ui::Weight;

struct CardTexts {
  std::string english;
  std::string chinese;
};

const CardTexts builtInName{"Built-in Display", "内建显示器"};
const CardTexts longName{"Conference Room Television on the Left Wall (2)",
                         "左侧墙面上的会议室超宽电视显示器（2）"};

DisplayChoiceCard card(OrvaneLanguage language, const CardTexts& name, bool isSelected) {
  DisplayChoiceCard shown;
  shown.display.id = "gallery";
  shown.display.name = language.localized(name.english, name.chinese);
  shown.display.isBuiltIn = &name == &builtInName;
  shown.fallbackLabel = language.localized("Studio Display", "Studio 显示器");
  shown.roleLabel = shown.display.isBuiltIn ? language.localized("Main Display", "主显示器")
                                            : language.localized("External Display", "外接显示器");
  shown.isSelected = isSelected;
  shown.action = [] {};
  return shown;
}

GalleryItem cardItem(const std::string& caption, const CardTexts& name, bool isSelected,
                     Interaction interaction = Interaction::none, bool isDisabled = false) {
  return {caption,
          [name = &name, isSelected, isDisabled](OrvaneLanguage language) {
            return View(card(language, *name, isSelected)).disabled(isDisabled);
          },
          interaction};
}

GallerySheet cardSheet() {
  static const CardTexts noName{"", ""};
  return {.name = "display-choice-card",
          .title = "DisplayChoiceCard",
          .background = GallerySheet::Background::panel,
          .items = {cardItem("normal", builtInName, false),
                    cardItem("hovered", builtInName, false, Interaction::hovered),
                    cardItem("pressed", builtInName, false, Interaction::pressed),
                    cardItem("selected", builtInName, true),
                    cardItem("selected, hovered", builtInName, true, Interaction::hovered),
                    cardItem("focused", builtInName, false, Interaction::focused),
                    cardItem("long name, selected", longName, true),
                    cardItem("without a name", noName, false)}};
}

GalleryItem pillItem(const std::string& caption, const std::string& english,
                     const std::string& chinese, bool isActive) {
  return {
      caption, [=](OrvaneLanguage language) {
        return View(StatusPill{.text = language.localized(english, chinese), .isActive = isActive});
      }};
}

GallerySheet pillSheet() {
  return {.name = "status-pill",
          .title = "StatusPill",
          .items = {pillItem("inactive", "Not Pinned", "未固定", false),
                    pillItem("active", "Pinned", "已固定", true),
                    pillItem("inactive", "Off", "未启用", false),
                    pillItem("active", "Enabled", "已启用", true)}};
}

GalleryItem iconItem(const std::string& caption, const std::string& symbol, const Color& tint) {
  return {caption,
          [=](OrvaneLanguage) { return View(PanelIcon{.systemImage = symbol, .tint = tint}); }};
}

GallerySheet iconSheet() {
  return {.name = "panel-icon",
          .title = "PanelIcon",
          .hasTexts = false,
          .items = {iconItem("pin", "lock", Color::accent()),
                    iconItem("prevent, off", "eye.slash", Color::gray()),
                    iconItem("prevent, on", "eye.slash", Color::accent()),
                    iconItem("another tint", "lock.open", Color::orange())}};
}

GalleryItem lightItem(const std::string& caption, bool isClose, bool showsIcon,
                      Interaction interaction = Interaction::none) {
  return {(isClose ? "close, " : "minimise, ") + caption,
          [=](OrvaneLanguage) {
            return View(isClose ? TrafficLightButton::close(showsIcon, "Close", [] {})
                                : TrafficLightButton::minimise(showsIcon, "Minimise", [] {}));
          },
          interaction};
}

std::vector<GalleryItem> lightItems(bool isClose) {
  return {lightItem("normal", isClose, false), lightItem("cluster hovered", isClose, true),
          lightItem("hovered", isClose, true, Interaction::hovered),
          lightItem("pressed", isClose, true, Interaction::pressed)};
}

GallerySheet lightSheet() {
  std::vector<GalleryItem> items = lightItems(true);
  std::ranges::move(lightItems(false), std::back_inserter(items));
  return {.name = "traffic-light-button",
          .title = "TrafficLightButton",
          .background = GallerySheet::Background::window,
          .hasTexts = false,
          .columns = 4,
          .items = std::move(items)};
}

GallerySheet panelSheet() {
  const auto panel = [](OrvaneLanguage language) {
    const View words =
        ui::VStack(3, ui::HorizontalAlignment::leading,
                   {ui::Text(language.localized("Pin Dock to a Display", "固定 Dock 到指定显示器"))
                        .font(Font::system(18, Weight::bold)),
                    ui::Text(language.localized("Dock stays on the selected display",
                                                "Dock 固定在选中的显示器"))
                        .font(Font::system(13))
                        .foreground(Color::secondary())});
    return View(DockPanel{ui::HStack(14, {PanelIcon{.systemImage = "lock", .tint = Color::accent()},
                                          words, ui::Spacer(),
                                          StatusPill{.text = language.localized("Pinned", "已固定"),
                                                     .isActive = true}})})
        .width(560);
  };
  return {.name = "dock-panel",
          .title = "DockPanel",
          .background = GallerySheet::Background::window,
          .columns = 1,
          .items = {{"with the head of a panel", panel}}};
}

}  // namespace

std::vector<GallerySheet> mainPanelSheets() {
  return {cardSheet(), pillSheet(), iconSheet(), lightSheet(), panelSheet()};
}

}  // namespace orvane::showroom
