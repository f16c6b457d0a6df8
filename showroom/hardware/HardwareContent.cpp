// Reads the panel's values from the machine and the application.
#include "showroom/hardware/HardwareContent.hpp"

#include <algorithm>

#include "showroom/desktop/StandardDisplays.hpp"

namespace orvane::showroom {

namespace {

std::vector<HardwareDisplay> displaysOf(const desk::Machine& machine) {
  std::vector<HardwareDisplay> displays;
  const desk::Display* const main = machine.displays.main();
  for (const desk::Display& display : machine.displays.all()) {
    displays.push_back({display.number, display.name, display.sizeText(),
                        main != nullptr && main->number == display.number});
  }
  return displays;
}

std::string dockText(const desk::Machine& machine) {
  const auto number = machine.dock.displayNumber();
  const desk::Display* const display = number ? machine.displays.find(*number) : nullptr;
  return display == nullptr ? "nowhere" : display->name;
}

std::string statusText(const desk::ApplicationHost& application) {
  if (!application.isRunning()) {
    return "Not running";
  }
  switch (application.snapshot().status) {
    case OrvaneStatus::unlocked:
      return "Unlocked";
    case OrvaneStatus::locked:
      return "Locked";
    case OrvaneStatus::temporarilyUnlocked:
      return "Unlocked for now";
    case OrvaneStatus::needsCheck:
      return "Needs a check";
    case OrvaneStatus::targetMissing:
      return "Display missing";
    case OrvaneStatus::permissionRequired:
      return "No permission";
  }
  return {};
}

std::optional<std::size_t> languagesOf(const desk::Machine& machine) {
  const auto& all = hardwareLanguages();
  const auto found = std::ranges::find(all, machine.locale, &HardwareLanguages::locale);
  return found == all.end() ? std::nullopt
                            : std::optional(static_cast<std::size_t>(found - all.begin()));
}

}  // namespace

const std::vector<HardwareLanguages>& hardwareLanguages() {
  static const std::vector<HardwareLanguages> all{
      {"English", {{"en-US"}, "en_US"}},
      {"中文", {{"zh-Hans-CN"}, "zh_CN"}},
      {"fr, zh", {{"fr-FR", "zh-Hans-CN"}, "fr_FR"}},
      {"Deutsch", {{"de-DE"}, "de_DE"}},
  };
  return all;
}

HardwareContent HardwareContent::of(const Hardware& hardware, std::int64_t eventsPerSecond) {
  const desk::Machine& machine = hardware.machine;
  const desk::ApplicationHost& application = hardware.application;
  HardwareContent content;
  content.displays = displaysOf(machine);
  content.canAttachDisplay = nextStandardDisplay(machine).has_value();
  content.edge = machine.dock.edge();
  content.autoHides = machine.dock.autoHides();
  content.isTrusted = machine.permission.isTrusted();
  content.isDark = machine.appearance.isDark;
  content.wallpaper = machine.appearance.wallpaper;
  content.languages = languagesOf(machine);
  content.isRunning = application.isRunning();
  content.showsZones = hardware.showsZones;
  content.counters = {{"Dock on", dockText(machine)},
                      {"Dock came up", std::to_string(machine.dock.revealCount())},
                      {"Orvane", statusText(application)},
                      {"Moved back", std::to_string(application.snapshot().guard.blockedCount)},
                      {"Movements", std::to_string(machine.counters.hardwareMovements)},
                      {"Events per second", std::to_string(eventsPerSecond)}};
  if (!application.messages().empty()) {
    content.message = application.messages().back().text;
  }
  return content;
}

}  // namespace orvane::showroom
