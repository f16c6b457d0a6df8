// Windows, links, pop-up buttons, the login item, the focus and the display cards.
#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

#include "Orvane/model/OrvaneProduct.hpp"
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

/// Parts of the links that are tried in turn until the system accepts one; empty ones at the end.
using LinkParts = std::array<std::string_view, 4>;

bool startsChain(std::span<const Links::Opened> opened, const LinkParts& parts) {
  return !opened.empty() && opened.front().url.find(parts.front()) != std::string::npos;
}

bool followsChain(std::span<const Links::Opened> opened, const LinkParts& parts) {
  std::size_t tried = 0;
  for (const std::string_view part : parts) {
    const bool isEnd = part.empty() || (tried > 0 && opened[tried - 1].wasAccepted);
    if (isEnd) {
      break;
    }
    if (tried == opened.size() || opened[tried].url.find(part) == std::string::npos) {
      return false;
    }
    ++tried;
  }
  return tried == opened.size();
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
  if (presses(step, &Labels::openWindow, "menu") && !step.before.isSettingsOpen &&
      after.isSettingsOpen) {
    return Violation{"effect", "the settings opened with the panel"};
  }
  if (presses(step, &Labels::close, "settings") && step.before.isMainOpen && !after.isMainOpen) {
    return Violation{"effect", "the panel closed with the settings"};
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
    LinkParts parts;
  };
  constexpr const char* settingsProgram = "System%20Settings.app";
  constexpr LinkParts accessibility{"PrivacySecurity.extension?Privacy_Accessibility",
                                    "preference.security?Privacy_Accessibility",
                                    "preference.security", settingsProgram};
  constexpr std::array links{
      Link{&Labels::privacyPolicy, "settings", {"https://"}},
      Link{&Labels::contactSupport, "settings", {OrvaneProduct::supportAddress}},
      Link{&Labels::accessibilitySettings, "settings", accessibility},
      Link{&Labels::loginItems, "settings", {"LoginItems-Settings", settingsProgram}},
      Link{&Labels::openDockSettings,
           "main",
           {"Desktop-Settings", "preference.dock", settingsProgram}},
      Link{&Labels::openPrivacySettings, "alert", accessibility},
  };
  const std::span opened = std::span(step.machine.links.opened()).subspan(step.before.linkCount);
  const bool mayOpen = step.isUserAction() && !presses(step, &Labels::notNow, "alert");
  if (!mayOpen && !opened.empty()) {
    return Violation{"effect", "a link was opened without need"};
  }
  for (const Link& link : links) {
    const bool isExpected = step.hasRun && presses(step, link.label, link.surface);
    const bool hasStarted = startsChain(opened, link.parts);
    if (isExpected && !hasStarted) {
      return Violation{"effect",
                       "no link with \"" + std::string(link.parts.front()) + "\" was opened"};
    }
    if (hasStarted && !followsChain(opened, link.parts)) {
      return Violation{"effect", "the links after \"" + opened.front().url + "\" are wrong"};
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
  if (!step.hasRun || !presses(step, &Labels::openAtLogin, "menu")) {
    return std::nullopt;
  }
  using Status = appkit::LoginItem::Status;
  const LoginItemState& item = step.machine.loginItem;
  const Status status = item.status;
  if (item.error) {
    const Status wanted =
        step.before.snapshot.launchAtLoginEnabled ? Status::notRegistered : Status::enabled;
    return status != wanted && step.after.snapshot.launchAtLoginErrorMessage != item.error
               ? Check(Violation{"login", "the failure of the login item is not shown"})
               : std::nullopt;
  }
  const bool isAsked = status == Status::enabled || status == Status::requiresApproval;
  return isAsked == step.before.snapshot.launchAtLoginEnabled
             ? Check(Violation{"effect", "the login item was not changed"})
             : std::nullopt;
}

EffectChecker::Check EffectChecker::checkMenuSwitches(const Step& step) const {
  const bool pressesLogin = presses(step, &Labels::openAtLogin, "menu");
  const bool isTyped = step.before.isStatusMenuOpen && !mayBeGranted(step) &&
                       (step.line == "key return" || step.line == "key space") &&
                       (step.before.stored.wants != step.after.stored.wants ||
                        step.before.stored.prevents != step.after.stored.prevents);
  const bool isSwitch = pressesLogin || isTyped || presses(step, &Labels::prevent, "menu") ||
                        presses(step, &Labels::pin, "menu");
  if (!isSwitch || !step.hasRun || step.wasNotified || step.after.isModal) {
    return std::nullopt;
  }
  if (!step.after.isStatusMenuOpen) {
    return Violation{"menu", "a press of a switch closed it"};
  }
  const auto menu = step.after.trees.find("menu");
  const bool isEnabled = step.machine.loginItem.status == appkit::LoginItem::Status::enabled;
  const bool isShown =
      menu == step.after.trees.end() ||
      std::ranges::any_of(std::array{Language::english, Language::chinese}, [&](Language language) {
        const auto row = findLabel(menu->second, labelsIn(language).openAtLogin);
        return row && row->value == (isEnabled ? "1" : "0");
      });
  return pressesLogin && !isShown
             ? Check(Violation{"menu", "its switch does not match the login item"})
             : std::nullopt;
}

EffectChecker::Check EffectChecker::checkFocus(const Step& step) const {
  const std::string& surface = step.before.keySurface;
  const auto before = step.before.trees.find(surface);
  const auto after = step.after.trees.find(surface);
  const std::uint64_t modifiers = step.machine.modifierKeys.flags();
  const bool isForward = modifiers == 0;
  if (step.line != "key tab" || !step.hasRun || step.after.keySurface != surface ||
      step.before.isMenuOpen || before == step.before.trees.end() ||
      after == step.after.trees.end() || (!isForward && modifiers != kCGEventFlagMaskShift)) {
    return std::nullopt;
  }
  std::vector<ui::SemanticsNode> order = findElements(
      before->second,
      [](const ui::SemanticsNode& node) { return node.isFocusable && node.isEnabled; });
  if (!isForward) {
    std::ranges::reverse(order);
  }
  const auto current = std::ranges::find(order, true, &ui::SemanticsNode::isFocused);
  // Tab passes over controls that have just appeared, which are invisible.
  constexpr std::int64_t transition = Clock::nanosecondsPerSecond;
  if (current == order.end() || step.after.now - elementsChangedAt_ < transition) {
    return std::nullopt;
  }
  const auto next = current + 1 == order.end() ? order.begin() : current + 1;
  const auto focused =
      findElement(after->second, [](const ui::SemanticsNode& node) { return node.isFocused; });
  return focused && focused->id == next->id
             ? std::nullopt
             : Check(Violation{"focus", "Tab did not move it to the next control in " + surface});
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
