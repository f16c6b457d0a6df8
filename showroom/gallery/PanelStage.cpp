// Every part of the machine that a panel shows is set, so that no stage depends on the one before.
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

void carriedOut(const desk::Displays::Problem& problem) {
  require(!problem, "the gallery asked for displays that cannot be");
}

void plugDisplays(const std::vector<std::string>& names, desk::Displays& displays) {
  require(names.size() <= displayFrames.size(), "the gallery has no place for so many displays");
  carriedOut(displays.beginChanges());
  while (!displays.isEmpty()) {
    carriedOut(displays.detach(displays.all().back().number));
  }
  for (std::size_t place = 0; place < names.size(); ++place) {
    desk::Display display;
    display.number = static_cast<std::uint32_t>(place + 1);
    display.uuid = PanelStage::displayID(place);
    display.name = names[place];
    display.frame = displayFrames.at(place);
    display.isBuiltIn = place == 0;
    carriedOut(displays.attach(display, place == 0));
  }
  carriedOut(displays.endChanges());
}

void forgetSettings(desk::UserDefaultsStore& defaults) {
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
  plugDisplays(displayNames, machine.displays);
  forgetSettings(machine.userDefaults);
  machine.permission.setTrusted(isTrusted);
  machine.loginItem.status = loginItem;
  machine.loginItem.error = loginItemError;
  machine.bundle.isOnReadOnlyVolume = isOnDiskImage;
  auto made = std::make_shared<OrvaneModel>();
  made->refreshDisplays();
  if (use) {
    use(*made);
  }
  return made;
}

std::string PanelStage::displayID(std::size_t place) {
  return "GALLERY-" + std::to_string(place + 1);
}

}  // namespace orvane::showroom
