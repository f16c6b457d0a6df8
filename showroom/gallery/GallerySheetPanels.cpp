// Both panels as a whole, each with its own model.
#include <utility>

#include "Orvane/panels/main/ContentView.hpp"
#include "Orvane/panels/settings/OrvaneSettingsView.hpp"
#include "showroom/gallery/GallerySheet.hpp"
#include "showroom/gallery/PanelStage.hpp"

namespace orvane::showroom {

namespace {

using LoginStatus = appkit::LoginItem::Status;
using Names = std::vector<std::string>;

GalleryItem mainPanel(const std::string& caption, const PanelStage& stage) {
  return {.caption = caption, .stage = [stage] {
            return [model = stage.model()] {
              return ui::View(ContentView{
                  .model = model.get(),
                  .actions = {.close = [] {}, .minimise = [] {}, .showSettings = [] {}}});
            };
          }};
}

GalleryItem settingsPanel(const std::string& caption, const PanelStage& stage) {
  return {.caption = caption, .stage = [stage] {
            return [model = stage.model()] {
              return ui::View(OrvaneSettingsView{.model = model.get(), .onClose = [] {}});
            };
          }};
}

Names firstDisplays(std::size_t count) {
  Names names{"",        "Studio Display", "DELL U2723QE", "LG HDR 4K",
              "SAMSUNG", "BenQ",           "EIZO EV2785",  "PHL 275E2F"};
  names.resize(count);
  return names;
}

void pin(OrvaneModel& model) {
  model.toggleSelectedDisplayLock();
}
void prevent(OrvaneModel& model) {
  model.toggleHideDockOnAllDisplays();
}
void openAtLogin(OrvaneModel& model) {
  model.setLaunchAtLoginEnabled(true);
}

GallerySheet mainPanelSheet(const std::string& name, const std::string& title, std::size_t columns,
                            std::vector<GalleryItem> items) {
  return {.name = name,
          .title = title,
          .background = GallerySheet::Background::mainWindow,
          .columns = columns,
          .items = std::move(items)};
}

GallerySheet displaysSheet() {
  const auto chooseTheLast = [](OrvaneModel& model) {
    model.selectDisplay(PanelStage::displayID(7));
  };
  return mainPanelSheet("main-panel-displays", "ContentView: displays", 3,
                        {mainPanel("none", {.displayNames = {}}),
                         mainPanel("one", {.displayNames = firstDisplays(1)}),
                         mainPanel("two", {.displayNames = firstDisplays(2)}),
                         mainPanel("three", {.displayNames = firstDisplays(3)}),
                         mainPanel("eight", {.displayNames = firstDisplays(8)}),
                         mainPanel("eight, the last chosen",
                                   {.displayNames = firstDisplays(8), .use = chooseTheLast})});
}

GallerySheet namesSheet() {
  const auto chooseTheSecond = [](OrvaneModel& model) {
    model.selectDisplay(PanelStage::displayID(1));
  };
  const Names longNames{"", "Conference Room Television on the Left Wall (2)",
                        "左侧墙面上的会议室超宽电视显示器（2）", "DELL"};
  const Names chineseNames{"", "书房的显示器", "LG HDR 4K", "会议室电视"};
  return mainPanelSheet(
      "main-panel-names", "ContentView: names of displays", 3,
      {mainPanel("long", {.displayNames = longNames, .use = chooseTheSecond}),
       mainPanel("Chinese beside Latin", {.displayNames = chineseNames, .use = chooseTheSecond}),
       mainPanel("missing", {.displayNames = {"", "", "", ""}, .use = chooseTheSecond})});
}

GallerySheet statesSheet() {
  const auto chooseOneThatIsAway = [](OrvaneModel& model) { model.selectDisplay("AWAY"); };
  return mainPanelSheet(
      "main-panel-states", "ContentView: states", 4,
      {mainPanel("pinned", {.displayNames = firstDisplays(2), .use = pin}),
       mainPanel("preventing", {.displayNames = firstDisplays(2), .use = prevent}),
       mainPanel("without the permission", {.displayNames = firstDisplays(2), .isTrusted = false}),
       mainPanel("the chosen display is away",
                 {.displayNames = firstDisplays(2), .use = chooseOneThatIsAway})});
}

GallerySheet settingsPanelSheet() {
  const Names two = firstDisplays(2);
  return {
      .name = "settings-panel",
      .title = "OrvaneSettingsView",
      .background = GallerySheet::Background::settingsWindow,
      .columns = 4,
      .items = {settingsPanel("normal", {.displayNames = two}),
                settingsPanel("the login item needs approval",
                              {.displayNames = two, .loginItem = LoginStatus::requiresApproval}),
                settingsPanel("run from a disk image",
                              {.displayNames = two, .isOnDiskImage = true, .use = openAtLogin}),
                settingsPanel("the login item fails",
                              {.displayNames = two,
                               .loginItemError = "The operation couldn’t be completed. "
                                                 "Operation not permitted",
                               .use = openAtLogin})}};
}

}  // namespace

std::vector<GallerySheet> panelSheets() {
  return {displaysSheet(), namesSheet(), statesSheet(), settingsPanelSheet()};
}

}  // namespace orvane::showroom
