// Forwards each change to the part of the machine that it concerns.
#include "showroom/hardware/Hardware.hpp"

#include <algorithm>

#include "showroom/desktop/StandardDisplays.hpp"

namespace orvane::showroom {

bool Hardware::canAttachDisplay() const {
  return nextStandardDisplay(machine_).has_value();
}

void Hardware::attachDisplay() {
  attachNextStandardDisplay(machine_);
  machine_.runDue();
}

void Hardware::detachDisplay(std::uint32_t number) {
  (void)machine_.displays.detach(number);
  machine_.runDue();
}

void Hardware::makeMain(std::uint32_t number) {
  (void)machine_.displays.setMain(number);
  machine_.runDue();
}

void Hardware::setEdge(desk::DockEdge edge) {
  desk::Dock::store(machine_.preferences, desk::Dock::orientationKey, std::string(nameOf(edge)));
  machine_.runDue();
}

void Hardware::setAutoHides(bool hides) {
  desk::Dock::store(machine_.preferences, desk::Dock::autoHideKey, hides);
  machine_.runDue();
}

void Hardware::setTrusted(bool trusted) {
  machine_.permission.setTrusted(trusted);
  machine_.runDue();
}

void Hardware::setDark(bool isDark) {
  machine_.appearance.isDark = isDark;
  machine_.runDue();
}

void Hardware::setWallpaper(desk::Appearance::Wallpaper wallpaper) {
  machine_.appearance.wallpaper = wallpaper;
  machine_.runDue();
}

const std::vector<LanguageList>& Hardware::languageLists() {
  static const std::vector<LanguageList> lists{
      {"English", {"en-US"}, "en_US"},
      {"中文", {"zh-Hans-CN"}, "zh_CN"},
      {"fr, zh", {"fr-FR", "zh-Hans-CN"}, "fr_FR"},
      {"Deutsch", {"de-DE"}, "de_DE"},
  };
  return lists;
}

std::optional<std::size_t> Hardware::languageList() const {
  const auto& lists = languageLists();
  const auto found = std::find_if(lists.begin(), lists.end(), [&](const LanguageList& list) {
    return list.preferred == machine_.locale.preferredLanguages &&
           list.locale == machine_.locale.currentIdentifier;
  });
  if (found == lists.end()) {
    return std::nullopt;
  }
  return static_cast<std::size_t>(found - lists.begin());
}

void Hardware::setLanguageList(std::size_t index) {
  if (index < languageLists().size()) {
    machine_.locale.preferredLanguages = languageLists()[index].preferred;
    machine_.locale.currentIdentifier = languageLists()[index].locale;
    machine_.runDue();
  }
}

void Hardware::launch() {
  application_.launch();
}

void Hardware::terminate() {
  application_.terminate();
}

void Hardware::crash() {
  application_.crash();
  machine_.runDue();
}

void Hardware::reopen() {
  application_.reopen();
}

}  // namespace orvane::showroom
