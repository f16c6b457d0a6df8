// The commands that set what the user and the system have decided: Dock, permission, languages,
// defaults, login item, links, looks.
#include "desk/script/SystemCommands.hpp"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orvane::desk::script {

namespace {

Complaint setDockEdge(ScriptContext& context, Arguments& arguments) {
  const std::string edge = arguments.text("VALUE");
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  Preferences& preferences = context.machine().preferences;
  const Preferences::Domain domain{Dock::preferencesDomain};
  if (edge == "missing") {
    preferences.remove(domain, Dock::orientationKey);
  } else if (edge == "number") {
    preferences.set(domain, Dock::orientationKey, 1.0);
  } else {
    preferences.set(domain, Dock::orientationKey, edge);
  }
  return std::nullopt;
}

Complaint setDockAutoHide(ScriptContext& context, Arguments& arguments) {
  const bool hides = arguments.onOff("on|off");
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  context.machine().preferences.set({Dock::preferencesDomain}, Dock::autoHideKey, hides);
  return std::nullopt;
}

Complaint setTrust(ScriptContext& context, Arguments& arguments) {
  const bool trusted = arguments.onOff("on|off");
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  context.machine().permission.setTrusted(trusted);
  return std::nullopt;
}

Complaint setTapCreation(ScriptContext& context, Arguments& arguments) {
  constexpr std::array<std::string_view, 2> choices = {"allow", "refuse"};
  const bool refuses = arguments.choice("allow|refuse", choices) == 1;
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  context.machine().eventTaps.setRefusesCreation(refuses);
  return std::nullopt;
}

Complaint disableTap(ScriptContext& context, Arguments& arguments) {
  constexpr std::array<std::string_view, 4> choices = {"timeout", "userinput", "silently",
                                                       "forgood"};
  const auto choice = arguments.choice("timeout|userinput|silently|forgood", choices);
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  EventTaps& taps = context.machine().eventTaps;
  if (choice >= 2) {
    taps.disableAllSilently(choice == 3);
  } else {
    taps.disableAll(choice == 1 ? kCGEventTapDisabledByUserInput : kCGEventTapDisabledByTimeout,
                    context.machine().pointer.place());
  }
  return std::nullopt;
}

Complaint setLocale(ScriptContext& context, Arguments& arguments) {
  const std::optional<std::string> preferred = arguments.option("preferred");
  const std::optional<std::string> current = arguments.option("current");
  if (!preferred && !current) {
    arguments.complain("preferred=A,B,... or current=C is missing");
  }
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  LocaleSettings& locale = context.machine().locale;
  if (preferred) {
    locale.preferredLanguages = splitAtCommas(*preferred);
  }
  if (current) {
    locale.currentIdentifier = *current;
  }
  return std::nullopt;
}

PropertyValue readPropertyValue(Arguments& arguments) {
  constexpr std::array<std::string_view, 3> types = {"string", "bool", "number"};
  // Each word for no stands before its word for yes.
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

Complaint setDefault(ScriptContext& context, Arguments& arguments) {
  const std::string key = arguments.text("KEY");
  PropertyValue value = readPropertyValue(arguments);
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  context.machine().userDefaults.set(key, std::move(value));
  return std::nullopt;
}

Complaint removeDefault(ScriptContext& context, Arguments& arguments) {
  const std::string key = arguments.text("KEY");
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  context.machine().userDefaults.remove(key);
  return std::nullopt;
}

Complaint setLoginStatus(ScriptContext& context, Arguments& arguments) {
  using Status = appkit::LoginItem::Status;
  constexpr std::array<std::string_view, 4> names = {"notRegistered", "enabled", "requiresApproval",
                                                     "notFound"};
  constexpr std::array<Status, 4> values = {Status::notRegistered, Status::enabled,
                                            Status::requiresApproval, Status::notFound};
  const Status status = values[arguments.choice("the status", names)];
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  context.machine().loginItem.status = status;
  return std::nullopt;
}

Complaint setLoginError(ScriptContext& context, Arguments& arguments) {
  std::string text = arguments.text("\"TEXT\"|none");
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  context.machine().loginItem.error =
      text == "none" ? std::nullopt : std::optional(std::move(text));
  return std::nullopt;
}

Complaint refuseLinks(ScriptContext& context, Arguments& arguments) {
  std::string prefix = arguments.text("PREFIX");
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  context.machine().links.refuse(std::move(prefix));
  return std::nullopt;
}

Complaint acceptLinks(ScriptContext& context, Arguments& arguments) {
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  context.machine().links.acceptAll();
  return std::nullopt;
}

Complaint setAppearance(ScriptContext& context, Arguments& arguments) {
  constexpr std::array<std::string_view, 2> choices = {"light", "dark"};
  const bool isDark = arguments.choice("light|dark", choices) == 1;
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  context.machine().appearance.isDark = isDark;
  return std::nullopt;
}

Complaint setAccent(ScriptContext& context, Arguments& arguments) {
  const std::vector<std::string> parts = splitAtCommas(arguments.text("R,G,B"));
  std::vector<Word> words;
  std::ranges::transform(parts, std::back_inserter(words), [](const std::string& part) {
    return Word{.text = part, .begin = 0, .end = 0, .complaint = {}};
  });
  Arguments numbers(words, {});
  const auto red = static_cast<std::uint8_t>(numbers.integer("R", 0, 255));
  const auto green = static_cast<std::uint8_t>(numbers.integer("G", 0, 255));
  const auto blue = static_cast<std::uint8_t>(numbers.integer("B", 0, 255));
  if (Complaint complaint = numbers.finish()) {
    arguments.complain(*complaint);
  }
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  context.machine().appearance.accent = Appearance::Accent{red, green, blue};
  return std::nullopt;
}

Complaint setWallpaper(ScriptContext& context, Arguments& arguments) {
  using Wallpaper = Appearance::Wallpaper;
  constexpr std::array<std::string_view, 4> names = {"default", "white", "black", "busy"};
  constexpr std::array<Wallpaper, 4> values = {Wallpaper::standard, Wallpaper::white,
                                               Wallpaper::black, Wallpaper::busy};
  const Wallpaper wallpaper = values[arguments.choice("the wallpaper", names)];
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  context.machine().appearance.wallpaper = wallpaper;
  return std::nullopt;
}

Complaint setMotion(ScriptContext& context, Arguments& arguments) {
  constexpr std::array<std::string_view, 2> choices = {"full", "reduced"};
  const bool isReduced = arguments.choice("reduced|full", choices) == 1;
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  context.machine().appearance.reducesMotion = isReduced;
  return std::nullopt;
}

Complaint setTransparency(ScriptContext& context, Arguments& arguments) {
  constexpr std::array<std::string_view, 2> choices = {"full", "reduced"};
  const bool isReduced = arguments.choice("reduced|full", choices) == 1;
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  context.machine().appearance.reducesTransparency = isReduced;
  return std::nullopt;
}

Complaint setContrast(ScriptContext& context, Arguments& arguments) {
  constexpr std::array<std::string_view, 2> choices = {"normal", "increased"};
  const bool isIncreased = arguments.choice("increased|normal", choices) == 1;
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  context.machine().appearance.increasesContrast = isIncreased;
  return std::nullopt;
}

}  // namespace

void addSystemCommands(CommandTable& table) {
  table.add({"dock edge", "VALUE|missing|number", setDockEdge});
  table.add({"dock autohide", "on|off", setDockAutoHide});
  table.add({"trust", "on|off", setTrust});
  table.add({"taps", "allow|refuse", setTapCreation});
  table.add({"tap disabled", "timeout|userinput|silently|forgood", disableTap});
  table.add({"locale", "preferred=A,B,... current=C", setLocale});
  table.add({"defaults set", "KEY string|bool|number VALUE", setDefault});
  table.add({"defaults remove", "KEY", removeDefault});
  table.add({"login status", "notRegistered|enabled|requiresApproval|notFound", setLoginStatus});
  table.add({"login error", "\"TEXT\"|none", setLoginError});
  table.add({"links refuse", "PREFIX", refuseLinks});
  table.add({"links accept", "", acceptLinks});
  table.add({"appearance", "light|dark", setAppearance});
  table.add({"accent", "R,G,B", setAccent});
  table.add({"wallpaper", "white|black|busy|default", setWallpaper});
  table.add({"motion", "reduced|full", setMotion});
  table.add({"transparency", "reduced|full", setTransparency});
  table.add({"contrast", "increased|normal", setContrast});
}

}  // namespace orvane::desk::script
