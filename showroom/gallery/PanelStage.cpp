// Sets every part of the machine that a panel shows, so no stage depends on an earlier one.
#include "showroom/gallery/PanelStage.hpp"

#include <array>

#include "Orvane/base/Require.hpp"
#include "desk/machine/Machine.hpp"

namespace orvane::showroom {

namespace {

/// In window-system coordinates, in points: two to the right of the main one, two to the left, two
/// above and one below.
constexpr std::array<CGRect, 8> displayFrames{{{{0, 0}, {1512, 982}},
                                               {{1512, 0}, {1920, 1080}},
                                               {{-1920, 0}, {1920, 1080}},
                                               {{0, 982}, {1920, 1080}},
                                               {{0, -1080}, {1920, 1080}},
                                               {{3432, 0}, {1080, 1920}},
                                               {{-3000, 0}, {1080, 1920}},
                                               {{0, 2062}, {1920, 1080}}}};

void requireSuccess(const desk::Displays::Problem& problem) {
  require(!problem, "the gallery's displays are invalid");
}

void attachDisplays(const std::vector<std::string>& names, desk::Displays& displays) {
  require(names.size() <= displayFrames.size(), "the gallery has frames for fewer displays");
  requireSuccess(displays.beginChanges());
  while (!displays.isEmpty()) {
    requireSuccess(displays.detach(displays.all().back().number));
  }
  for (std::size_t index = 0; index < names.size(); ++index) {
    desk::Display display;
    display.number = static_cast<std::uint32_t>(index + 1);
    display.uuid = PanelStage::displayID(index);
    display.name = names[index];
    display.frame = displayFrames.at(index);
    display.isBuiltIn = index == 0;
    requireSuccess(displays.attach(display, index == 0));
  }
  requireSuccess(displays.endChanges());
}

void removeSettings(desk::UserDefaultsStore& defaults) {
  const desk::UserDefaultsStore::Values stored = defaults.values();
  for (const auto& [key, value] : stored) {
    if (key != OrvaneLanguage::defaultsKey) {
      defaults.remove(key);
    }
  }
}

}  // namespace

std::shared_ptr<OrvaneModel> PanelStage::model() const {
  desk::Machine& machine = desk::Machine::current();
  attachDisplays(displayNames, machine.displays);
  removeSettings(machine.userDefaults);
  machine.permission.setTrusted(isTrusted);
  machine.loginItem.status = loginItem;
  machine.loginItem.error = loginItemError;
  machine.bundle.isOnReadOnlyVolume = isOnDiskImage;
  auto model = std::make_shared<OrvaneModel>();
  model->refreshDisplays();
  if (use) {
    use(*model);
  }
  return model;
}

std::string PanelStage::displayID(std::size_t index) {
  return "GALLERY-" + std::to_string(index + 1);
}

}  // namespace orvane::showroom
