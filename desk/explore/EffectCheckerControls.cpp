// Windows, links, pop-up buttons, the login item and the display cards.
#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

#include "desk/explore/EffectChecker.hpp"
#include "desk/explore/Lines.hpp"
#include "desk/explore/Operations.hpp"
#include "desk/explore/Presses.hpp"
#include "desk/hand/FindControl.hpp"

namespace orvane::desk::explore {

namespace {

/// The panel's cards, or the menu's rows from the first display on.
std::vector<ui::SemanticsNode> displayChoices(const ui::SemanticsNode& tree,
                                              std::string_view surface) {
  if (surface == "main") {
    return findElements(
        tree, [](const ui::SemanticsNode& node) { return node.role == ui::Role::radioButton; });
  }
  std::vector<ui::SemanticsNode> rows = findControls(tree);
  rows.erase(rows.begin(),
             rows.begin() + static_cast<std::ptrdiff_t>(std::min(menuSwitches, rows.size())));
  return rows;
}

}  // namespace

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
  if (presses(step, &Labels::settings, "menu") || presses(step, &Labels::settings, "main")) {
    if (!after.shows("settings")) {
      return Violation{"effect", "the settings did not open"};
    }
    if (after.keySurface != "settings") {
      return Violation{"effect", "the settings did not become key"};
    }
  }
  if (presses(step, &Labels::minimise, "main") && after.isLaunched && !after.isMainMinimised) {
    return Violation{"effect", "the panel was not minimised"};
  }
  for (const char* const surface : {"main", "settings", "guide"}) {
    const bool isClosed =
        presses(step, &Labels::close, surface) ||
        (surface == std::string_view("guide") && presses(step, &Labels::done, surface));
    if ((isClosed || step.operation == hidingOperation) && after.shows(surface)) {
      return Violation{"effect", std::string(surface) + " is still shown"};
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
  const bool mayOpen = step.isUserAction() && !presses(step, &Labels::notNow, "alert");
  if (!mayOpen && opened.size() > step.before.linkCount) {
    return Violation{"effect", "a link was opened without need"};
  }
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
  for (const char* const surface : {"main", "menu"}) {
    const auto tree = step.before.trees.find(surface);
    const bool isShown = tree != step.before.trees.end() &&
                         (surface == std::string_view("main") || step.before.isStatusMenuOpen);
    if (!step.hasRun || step.isStale || !isShown) {
      continue;
    }
    const std::vector<ui::SemanticsNode> choices = displayChoices(tree->second, surface);
    for (std::size_t index = 0; index < std::min(choices.size(), configuration.screens.size());
         ++index) {
      const std::string& label = choices[index].label;
      const bool isPressed = step.operation == "press " + quoted(label) + " in " + surface &&
                             findControl(tree->second, label)->frame == choices[index].frame;
      if (isPressed && step.after.stored.selected != configuration.screens[index].names.front()) {
        return Violation{"effect", "another display was chosen than the pressed one"};
      }
    }
  }
  return std::nullopt;
}

}  // namespace orvane::desk::explore
