// The commands for settings of the user and the system: Dock, permission, languages, defaults,
// login item, links, appearance.
#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "desk/script/Commands.hpp"

namespace orvane::desk::script {

namespace {

using LoginStatus = appkit::LoginItem::Status;
using Wallpaper = Appearance::Wallpaper;
enum class Disabling { timeout, userInput, silently, forGood };

struct Languages {
  std::optional<std::string> preferred;
  std::optional<std::string> current;
};

Languages readLanguages(ScriptContext& /*context*/, Arguments& arguments) {
  Languages languages{arguments.option("preferred"), arguments.option("current")};
  if (!languages.preferred && !languages.current) {
    arguments.report("preferred=A,B,... or current=C is missing");
  }
  return languages;
}

NotificationDelivery readDelivery(ScriptContext& /*context*/, Arguments& arguments) {
  constexpr std::array<std::string_view, 3> words = {"prompt", "late", "doubled"};
  constexpr std::int64_t longestDelay = 3600 * Clock::nanosecondsPerSecond;
  const std::size_t word = arguments.choice("prompt|late|doubled", words);
  const std::int64_t delay = word == 1 ? arguments.nanoseconds("S", longestDelay) : 0;
  return {.delayNanoseconds = delay, .isDoubled = word == 2};
}

PropertyValue readPropertyValue(ScriptContext& /*context*/, Arguments& arguments) {
  constexpr std::array<std::string_view, 3> types = {"string", "bool", "number"};
  // Words for false and true alternate.
  constexpr std::array<std::string_view, 8> noAndYes = {"false", "true", "off", "on",
                                                        "no",    "yes",  "0",   "1"};
  switch (arguments.choice("the type", types)) {
    case 1:
      return arguments.choice("VALUE", noAndYes) % 2 == 1;
    case 2:
      return arguments.number("VALUE");
    default:
      return arguments.text("VALUE");
  }
}

Appearance::Accent readAccent(ScriptContext& /*context*/, Arguments& arguments) {
  const std::vector<std::string> parts = split(arguments.text("R,G,B"), ',');
  std::vector<Word> words(parts.size());
  std::ranges::transform(parts, words.begin(), [](const std::string& part) {
    return Word{.text = part, .begin = 0, .end = 0, .problem = {}};
  });
  Arguments numbers(words, {});
  const auto red = static_cast<std::uint8_t>(numbers.integer("R", 0, 255));
  const auto green = static_cast<std::uint8_t>(numbers.integer("G", 0, 255));
  const auto blue = static_cast<std::uint8_t>(numbers.integer("B", 0, 255));
  if (Problem problem = numbers.finish()) {
    arguments.report(*problem);
  }
  return {red, green, blue};
}

void setDockEdge(Machine& machine, const std::string& edge) {
  if (edge == "missing") {
    machine.preferences.remove({Dock::preferencesDomain}, Dock::orientationKey);
  } else if (edge == "number") {
    Dock::store(machine.preferences, Dock::orientationKey, 1.0);
  } else {
    Dock::store(machine.preferences, Dock::orientationKey, edge);
  }
}

void disableTap(Machine& machine, Disabling how) {
  if (how == Disabling::silently || how == Disabling::forGood) {
    machine.eventTaps.disableAllSilently(how == Disabling::forGood);
  } else {
    machine.eventTaps.disableAll(
        how == Disabling::userInput ? kCGEventTapDisabledByUserInput : kCGEventTapDisabledByTimeout,
        machine.pointer.location());
  }
}

void setLanguages(Machine& machine, const Languages& languages) {
  if (languages.preferred) {
    machine.locale.preferredLanguages = split(*languages.preferred, ',');
  }
  machine.locale.currentIdentifier = languages.current.value_or(machine.locale.currentIdentifier);
}

/// Sets a part of the appearance.
template <typename Value, typename Member>
auto setsLook(Member Appearance::*member) {
  return [member](Machine& machine, Value value) { machine.appearance.*member = value; };
}

void addLooks(CommandTable& table) {
  using Accent = Appearance::Accent;
  table.add("appearance", takes(either("light|dark", "light", "dark")),
            setsLook<bool>(&Appearance::isDark));
  table.add("accent", takes(Parameter<Accent>{"R,G,B", readAccent}),
            setsLook<Accent>(&Appearance::accent));
  table.add("wallpaper",
            takes(choice<Wallpaper>("white|black|busy|default",
                                    {{"default", Wallpaper::standard},
                                     {"white", Wallpaper::white},
                                     {"black", Wallpaper::black},
                                     {"busy", Wallpaper::busy}},
                                    "the wallpaper")),
            setsLook<Wallpaper>(&Appearance::wallpaper));
  table.add("motion", takes(either("reduced|full", "full", "reduced")),
            setsLook<bool>(&Appearance::reducesMotion));
  table.add("transparency", takes(either("reduced|full", "full", "reduced")),
            setsLook<bool>(&Appearance::reducesTransparency));
  table.add("contrast", takes(either("increased|normal", "normal", "increased")),
            setsLook<bool>(&Appearance::increasesContrast));
}

}  // namespace

void addSystemCommands(CommandTable& table) {
  table.add("dock edge", takes(text("VALUE", "VALUE|missing|number")), setDockEdge);
  table.add("dock autohide", takes(onOff()), [](Machine& machine, bool hides) {
    Dock::store(machine.preferences, Dock::autoHideKey, hides);
  });
  table.add("trust", takes(onOff()),
            [](Machine& machine, bool isTrusted) { machine.permission.setTrusted(isTrusted); });
  table.add("taps", takes(either("allow|refuse", "allow", "refuse")),
            [](Machine& machine, bool refuses) { machine.eventTaps.setRefusesCreation(refuses); });
  table.add("tap disabled",
            takes(choice<Disabling>("timeout|userinput|silently|forgood",
                                    {{"timeout", Disabling::timeout},
                                     {"userinput", Disabling::userInput},
                                     {"silently", Disabling::silently},
                                     {"forgood", Disabling::forGood}})),
            disableTap);
  table.add("sources", takes(either("allow|refuse", "allow", "refuse")),
            [](Machine& machine, bool refuses) { machine.runLoop.setRefusesSources(refuses); });
  table.add(
      "notifications",
      takes(Parameter<NotificationDelivery>{"prompt|late S|doubled", readDelivery}),
      [](Machine& machine, NotificationDelivery delivery) { machine.notifications = delivery; });
  table.add("locale", takes(Parameter<Languages>{"preferred=A,B,... current=C", readLanguages}),
            setLanguages);
  table.add(
      "defaults set",
      takes(text("KEY"), Parameter<PropertyValue>{"string|bool|number VALUE", readPropertyValue}),
      [](Machine& machine, const std::string& key, PropertyValue value) {
        machine.userDefaults.set(key, std::move(value));
      });
  table.add("defaults remove", takes(text("KEY")),
            [](Machine& machine, const std::string& key) { machine.userDefaults.remove(key); });
  table.add("login status",
            takes(choice<LoginStatus>("notRegistered|enabled|requiresApproval|notFound",
                                      {{"notRegistered", LoginStatus::notRegistered},
                                       {"enabled", LoginStatus::enabled},
                                       {"requiresApproval", LoginStatus::requiresApproval},
                                       {"notFound", LoginStatus::notFound}},
                                      "the status")),
            [](Machine& machine, LoginStatus status) { machine.loginItem.status = status; });
  table.add("login error", takes(text("\"TEXT\"|none")),
            [](Machine& machine, const std::string& error) {
              machine.loginItem.error.reset();
              if (error != "none") {
                machine.loginItem.error = error;
              }
            });
  table.add("links refuse", takes(text("PREFIX")),
            [](Machine& machine, std::string prefix) { machine.links.refuse(std::move(prefix)); });
  table.add("links accept", takes(), [](Machine& machine) { machine.links.acceptAll(); });
  addLooks(table);
}

}  // namespace orvane::desk::script
