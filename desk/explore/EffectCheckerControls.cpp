// Windows, links, pop-up buttons, the login item and the display cards.
#include <algorithm>
#include <array>
#include <vector>

#include "desk/explore/EffectChecker.hpp"
#include "desk/explore/Lines.hpp"
#include "desk/explore/Presses.hpp"
#include "desk/hand/FindControl.hpp"

namespace orvane::desk::explore {

EffectChecker::Check EffectChecker::checkWindows(const Step& step) const {
  const Observation& after = step.after;
  if (!step.hasRun || after.isModal) {
    return std::nullopt;
  }
  if (step.before.isLaunched &&
      (step.line == "reopen" || presses(step, &Labels::openWindow, "menu")) &&
      !after.shows("main")) {
    return Violation{"effect", "the panel did not open"};
  }
  if ((presses(step, &Labels::settings, "menu") || presses(step, &Labels::settings, "main")) &&
      !after.shows("settings")) {
    return Violation{"effect", "the settings did not open"};
  }
  for (const char* const surface : {"main", "settings", "guide"}) {
    if (presses(step, &Labels::close, surface) && after.shows(surface)) {
      return Violation{"effect", std::string(surface) + " did not close"};
    }
  }
  if (presses(step, &Labels::quit, "menu") && after.isLaunched) {
    return Violation{"effect", "the application did not quit"};
  }
  return std::nullopt;
}

EffectChecker::Check EffectChecker::checkLinks(const Step& step) const {
  struct Link {
    const char* Labels::*label;
    const char* surface;
    /// A part of the first link that is tried.
    const char* part;
  };
  constexpr std::array links{
      Link{&Labels::privacyPolicy, "settings", "https://"},
      Link{&Labels::contactSupport, "settings", "mailto:"},
      Link{&Labels::accessibilitySettings, "settings", "Privacy_Accessibility"},
      Link{&Labels::openDockSettings, "main", "Desktop-Settings"},
      Link{&Labels::openPrivacySettings, "alert", "Privacy_Accessibility"},
  };
  const std::vector<Links::Opened>& opened = step.machine.links.opened();
  for (const Link& link : links) {
    const bool isExpected = step.hasRun && presses(step, link.label, link.surface);
    if (isExpected && (opened.size() <= step.before.linkCount ||
                       opened[step.before.linkCount].url.find(link.part) == std::string::npos)) {
      return Violation{"effect", std::string("no link with \"") + link.part + "\" was opened"};
    }
  }
  return std::nullopt;
}

EffectChecker::Check EffectChecker::checkPickers(const Step& step) const {
  if (!step.hasRun) {
    return std::nullopt;
  }
  const Stored& stored = step.after.stored;
  for (const char* const choice : {"system", "english", "chinese"}) {
    const bool isPicked = std::ranges::any_of(
        std::array{Language::english, Language::chinese}, [&](Language language) {
          return picks(step, &Labels::language, languageItem(choice, language));
        });
    if (isPicked && stored.language != choice) {
      return Violation{"effect", "the language is not the picked one"};
    }
  }
  for (const char* const choice : {"option", "control", "shift", "command"}) {
    if (picks(step, &Labels::unlockShortcut, shortcutItem(choice)) && stored.modifier != choice) {
      return Violation{"effect", "the unlock key is not the picked one"};
    }
  }
  return std::nullopt;
}

EffectChecker::Check EffectChecker::checkLoginSwitch(const Step& step) const {
  if (!step.hasRun || !presses(step, &Labels::openAtLogin, "menu") ||
      step.machine.loginItem.error) {
    return std::nullopt;
  }
  using Status = appkit::LoginItem::Status;
  const Status status = step.machine.loginItem.status;
  const bool isAsked = status == Status::enabled || status == Status::requiresApproval;
  return isAsked == step.before.snapshot.launchAtLoginEnabled
             ? Check(Violation{"effect", "the login item was not changed"})
             : std::nullopt;
}

EffectChecker::Check EffectChecker::checkCards(const Step& step,
                                               const DisplayConfiguration& configuration) const {
  const auto panel = step.before.trees.find("main");
  if (!step.hasRun || step.isStale || panel == step.before.trees.end()) {
    return std::nullopt;
  }
  const std::vector<ui::SemanticsNode> cards = findElements(
      panel->second,
      [](const ui::SemanticsNode& node) { return node.role == ui::Role::radioButton; });
  for (std::size_t index = 0; index < std::min(cards.size(), configuration.screens.size());
       ++index) {
    const std::string& label = cards[index].label;
    const bool isPressed = step.operation == "press " + quoted(label) + " in main" &&
                           findControl(panel->second, label)->id == cards[index].id;
    if (isPressed && step.after.stored.selected != configuration.screens[index].names.front()) {
      return Violation{"effect", "the card of another display was chosen"};
    }
  }
  return std::nullopt;
}

}  // namespace orvane::desk::explore
