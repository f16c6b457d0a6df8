// The rows of the status menu.
#include "Orvane/app/CompactMenuSwitch.hpp"
#include "Orvane/app/StatusMenuRow.hpp"
#include "Orvane/app/StatusMenuSectionHeader.hpp"
#include "showroom/gallery/GallerySheet.hpp"

namespace orvane::showroom {

namespace {

using ui::View;

struct RowTexts {
  std::string symbol;
  std::string english;
  std::string chinese;
};

struct RowState {
  bool isSelected = false;
  bool isEnabled = true;
  std::optional<bool> isOn = std::nullopt;
};

GalleryItem rowItem(const std::string& caption, const RowTexts& texts, const RowState& state,
                    Interaction interaction = Interaction::none) {
  return {caption,
          [=](OrvaneLanguage language) {
            return View(StatusMenuRow{.title = language.localized(texts.english, texts.chinese),
                                      .systemImage = texts.symbol,
                                      .isSelected = state.isSelected,
                                      .isEnabled = state.isEnabled,
                                      .isOn = state.isOn,
                                      .action = [] {}});
          },
          interaction};
}

GallerySheet rowSheet() {
  const RowTexts prevent{"eye.slash", "Prevent Dock Pop-Up", "防止 Dock 弹出"};
  const RowTexts pin{"lock", "Pin Dock", "固定 Dock"};
  const RowTexts display{"display", "Built-in Display (Main)", "内建显示器 （主要）"};
  const RowTexts longName{"display", "Conference Room Television on the Left Wall (2)",
                          "左侧墙面上的会议室超宽电视显示器（2）"};
  const RowTexts open{"macwindow", "Open Window", "打开窗口"};
  const RowTexts none{"display.trianglebadge.exclamationmark", "No displays detected",
                      "未检测到显示器"};
  const GalleryItem header{
      "section header", [](OrvaneLanguage language) {
        return View(StatusMenuSectionHeader{language.localized("Choose Display", "选择显示器")})
            .frame(208, StatusMenuSectionHeader::height);
      }};
  return {
      .name = "status-menu-row",
      .title = "StatusMenuRow",
      .background = GallerySheet::Background::menu,
      .columns = 7,
      .items = {rowItem("switch, off", prevent, {.isOn = false}),
                rowItem("switch, on", prevent, {.isOn = true}),
                rowItem("switch, hovered", prevent, {.isOn = false}, Interaction::hovered),
                rowItem("switch, disabled", pin, {.isEnabled = false, .isOn = false}),
                rowItem("normal", open, {}), rowItem("hovered", open, {}, Interaction::hovered),
                rowItem("display", display, {}),
                rowItem("display, selected", display, {.isSelected = true}),
                rowItem("selected, hovered", display, {.isSelected = true}, Interaction::hovered),
                rowItem("long name", longName, {}), rowItem("disabled", none, {.isEnabled = false}),
                rowItem("focused", open, {}, Interaction::focused), header}};
}

GallerySheet switchSheet() {
  const auto item = [](const std::string& caption, bool isOn) {
    return GalleryItem{caption, [isOn](OrvaneLanguage) { return View(CompactMenuSwitch{isOn}); }};
  };
  return {.name = "compact-menu-switch",
          .title = "CompactMenuSwitch",
          .background = GallerySheet::Background::menu,
          .hasTexts = false,
          .items = {item("off", false), item("on", true)}};
}

}  // namespace

std::vector<GallerySheet> menuSheets() {
  return {rowSheet(), switchSheet()};
}

}  // namespace orvane::showroom
