// The promises about what is shown: icon, menu, panels, windows, texts.
#include <algorithm>
#include <array>

#include "desk/explore/Safety.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::desk::explore {

namespace {

const ui::SemanticsNode* findLabel(const ui::SemanticsNode& tree, const std::string& label,
                                   bool mustBeControl) {
  for (const ui::SemanticsNode* const element : elementsOf(tree)) {
    if (element->label == label && (element->isControl() || !mustBeControl)) {
      return element;
    }
  }
  return nullptr;
}

bool hasPopUpWith(const ui::SemanticsNode& tree, const std::string& value) {
  return std::ranges::any_of(elementsOf(tree), [&](const ui::SemanticsNode* element) {
    return element->role == ui::Role::popUpButton && element->value == value;
  });
}

std::string shortcutOf(const std::string& modifier) {
  if (modifier == "control") {
    return "⌃ Control";
  }
  if (modifier == "shift") {
    return "⇧ Shift";
  }
  return modifier == "command" ? "⌘ Command" : "⌥ Option";
}

}  // namespace

Safety::Check Safety::checkIcon(const Moment& after) {
  const std::string symbol = after.isGuardRunning ? "lock.fill" : "lock.open";
  if (isOverdue("icon", after.icon != symbol, after.now)) {
    return Violation{"icon", "it is \"" + after.icon + "\"", "icon.symbol \"" + symbol + "\""};
  }
  const bool isRead = std::ranges::any_of(tongues_, [&](Tongue tongue) {
    const Words& words = wordsOf(tongue);
    return after.iconValue == (after.isGuardRunning ? words.locked : words.unlocked);
  });
  if (isOverdue("icon's value", !isRead && !after.isQueueHeld, after.now)) {
    return Violation{"icon", "it is read as \"" + after.iconValue + "\""};
  }
  return std::nullopt;
}

Safety::Check Safety::checkMenu(const Moment& after) {
  const auto menu = after.trees.find("menu");
  const bool pins = after.isGuardRunning && !after.stored.prevents;
  const bool prevents = after.isGuardRunning && after.stored.prevents;
  const bool isRight =
      !after.isStatusMenuOpen || menu == after.trees.end() ||
      std::ranges::any_of(tongues_, [&](Tongue tongue) {
        const auto* const pin = findLabel(menu->second, wordsOf(tongue).pin, false);
        const auto* const prevent = findLabel(menu->second, wordsOf(tongue).prevent, false);
        return pin != nullptr && prevent != nullptr && pin->value == (pins ? "1" : "0") &&
               prevent->value == (prevents ? "1" : "0");
      });
  if (isOverdue("menu", !isRight, after.now)) {
    return Violation{"menu", "its switches are not what the guard does"};
  }
  return std::nullopt;
}

Safety::Check Safety::checkMainPanel(const Moment& after) const {
  const auto panel = after.trees.find("main");
  if (panel == after.trees.end() || after.isQueueHeld) {
    return std::nullopt;
  }
  const bool pins = after.isGuardRunning && !after.stored.prevents;
  const bool prevents = after.isGuardRunning && after.stored.prevents;
  const bool isRight = std::ranges::any_of(tongues_, [&](Tongue tongue) {
    const Words& words = wordsOf(tongue);
    const auto hasButton = [&](const char* label) {
      return findLabel(panel->second, label, true) != nullptr;
    };
    return hasButton(pins ? words.unpin : words.pin) &&
           !hasButton(pins ? words.pin : words.unpin) &&
           hasButton(prevents ? words.allow : words.prevent) &&
           !hasButton(prevents ? words.prevent : words.allow);
  });
  return isRight ? std::nullopt
                 : Check(Violation{"panel", "its buttons are not for what the guard does"});
}

Safety::Check Safety::checkSettings(const Moment& after) const {
  const auto panel = after.trees.find("settings");
  if (panel == after.trees.end()) {
    return std::nullopt;
  }
  const bool hasLanguage = std::ranges::any_of(tongues_, [&](Tongue tongue) {
    const Words& words = wordsOf(tongue);
    const std::string& choice = after.stored.language;
    return hasPopUpWith(panel->second, choice == "english"   ? words.english
                                       : choice == "chinese" ? words.chinese
                                                             : words.followSystem);
  });
  if (!hasLanguage || !hasPopUpWith(panel->second, shortcutOf(after.stored.modifier))) {
    return Violation{"settings", "they show another choice than the stored one"};
  }
  return std::nullopt;
}

Safety::Check Safety::checkWindows(const Moment& after) const {
  const WindowServer& server = WindowServer::current();
  if ((WindowServer::current().statusBar.item() != nullptr) != after.isLaunched) {
    return Violation{"item", "the status item and the application do not go together"};
  }
  std::set<std::string> kinds;
  for (const auto& window : server.windows()) {
    if (window->owner != WindowOwner::application) {
      continue;
    }
    if (!after.isLaunched) {
      return Violation{"windows", "a window has outlived the application"};
    }
    if (!kinds.insert(window->className).second) {
      return Violation{"windows", "there are two of " + window->className};
    }
    // A child goes where its parent is taken.
    const bool mustBeSeen = window->parent.expired() && server.isVisible(*window) &&
                            after.displayCount > 0 && !after.isChangingTogether;
    if (mustBeSeen && !server.displayIndexOf(*window)) {
      return Violation{"windows", window->className + " is on no display"};
    }
  }
  return std::nullopt;
}

Safety::Check Safety::checkModes(const Moment& after) const {
  if (after.isModal != after.shows("alert")) {
    return Violation{"modes", "the modal session and the alert do not go together"};
  }
  if (after.isQueueHeld != after.isModal) {
    return Violation{"modes", "the main queue is held without a modal session, or not in one"};
  }
  const bool isStandard = machine_.runLoop.mode() == RunLoop::Mode::standard;
  if (isStandard != (!after.isModal && !after.isMenuOpen)) {
    return Violation{"modes", "the run loop is in a mode that nobody asked for"};
  }
  const bool hasSucceeded = after.guideState == PermissionGuideState::success;
  if (after.isGuidePolling && (!after.isGuideOpen || hasSucceeded)) {
    return Violation{"guide", "it looks for the permission without need", "guide.polling false"};
  }
  if (after.isGuideOpen && !after.isGuidePolling && !hasSucceeded) {
    return Violation{"guide", "it is shown and does not look for the permission",
                     "guide.polling true"};
  }
  const int activities = machine_.application.activityCount;
  const bool isActive = after.isLaunched && after.isGuardRunning;
  if (!after.isQueueHeld && after.isLaunched && activities != (isActive ? 1 : 0)) {
    return Violation{"activity", std::to_string(activities) + " have begun and not ended"};
  }
  return std::nullopt;
}

Safety::Check Safety::checkTexts(const Moment& after) const {
  for (const auto& [surface, tree] : after.trees) {
    // The alert and the guide need not follow a change of the language while they are open.
    const bool isPanel = surface == "alert" || surface == "guide";
    const std::set<Tongue>& tongues = isPanel ? tonguesOfPanels_ : tongues_;
    if (tongues.size() > 1) {
      continue;
    }
    for (const ui::SemanticsNode* const element : elementsOf(tree)) {
      for (const std::string* const text : {&element->label, &element->value}) {
        if (!isIn(*tongues.begin(), *text, names_)) {
          return Violation{"texts", "\"" + *text + "\" in " + surface};
        }
      }
    }
  }
  return std::nullopt;
}

}  // namespace orvane::desk::explore
