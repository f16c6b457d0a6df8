// The invariants of the icon, the menu, the panels, the windows and the texts.
#include <algorithm>
#include <array>
#include <cmath>

#include "desk/explore/InvariantChecker.hpp"
#include "desk/hand/FindControl.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::desk::explore {

namespace {

/// In nanoseconds: the guide appears, or starts anew, 2 s after an alert, times out after 10 s,
/// closes 1.5 s after its success, and polls once a second. If it starts anew during its success,
/// it succeeds a second time.
constexpr std::int64_t minimumGuideTimeout = 10 * Clock::nanosecondsPerSecond;
constexpr std::int64_t guideTimeout = 13 * Clock::nanosecondsPerSecond;
constexpr std::int64_t guideSuccess = 5 * Clock::nanosecondsPerSecond;

/// The application looks for something to announce once a second.
constexpr std::int64_t announcementDelay = 2 * Clock::nanosecondsPerSecond;

bool contains(const std::string& text, std::string_view part) {
  return text.find(part) != std::string::npos;
}

bool announcesPin(const std::string& text) {
  return contains(text, "is pinned to") || contains(text, "已固定到");
}

bool announcesPrevention(const std::string& text) {
  return contains(text, "is kept from popping up") || contains(text, "已防止");
}

bool hasPopUpWith(const ui::SemanticsNode& tree, const std::string& value) {
  return findElement(tree,
                     [&](const ui::SemanticsNode& node) {
                       return node.role == ui::Role::popUpButton && node.value == value;
                     })
      .has_value();
}

std::vector<ui::SemanticsNode> cardsOf(const ui::SemanticsNode& panel) {
  return findElements(
      panel, [](const ui::SemanticsNode& node) { return node.role == ui::Role::radioButton; });
}

/// The text that says where the display is, from the main one.
const char* Labels::*placeOf(const DisplayConfiguration::Screen& screen,
                             const std::vector<DisplayConfiguration::Screen>& screens) {
  const auto main = std::ranges::find(screens, true, &DisplayConfiguration::Screen::isMain);
  if (screen.isMain) {
    return &Labels::mainDisplay;
  }
  if (main == screens.end()) {
    return &Labels::externalDisplay;
  }
  const double dx = screen.x + screen.width / 2 - (main->x + main->width / 2);
  const double dy = screen.y + screen.height / 2 - (main->y + main->height / 2);
  if (std::abs(dx) < std::abs(dy)) {
    return dy < 0 ? &Labels::upperDisplay : &Labels::lowerDisplay;
  }
  if (dx == 0) {
    return &Labels::externalDisplay;
  }
  return dx < 0 ? &Labels::leftDisplay : &Labels::rightDisplay;
}

bool hasLabel(const ui::SemanticsNode& tree, const char* Labels::*label) {
  return std::ranges::any_of(
      std::array{Language::english, Language::chinese},
      [&](Language language) { return findLabel(tree, labelsIn(language).*label).has_value(); });
}

/// Whether the panel marks as chosen exactly the displays with the identifier of the target.
bool marksTarget(const ui::SemanticsNode& panel, const Observation& after) {
  const std::optional<std::string>& target = after.snapshot.selectedDisplayID;
  return std::ranges::equal(cardsOf(panel), after.snapshot.displays,
                            [&](const ui::SemanticsNode& card, const DisplaySnapshot& display) {
                              return card.isSelected == (target == display.id) &&
                                     card.label == display.name;
                            });
}

}  // namespace

InvariantChecker::Check InvariantChecker::checkIcon(const Observation& after) {
  const std::string expected = after.isGuardRunning ? "lock.fill" : "lock.open";
  // The guard may start and stop before the icon has followed once.
  for (const char* const symbol : {"lock.fill", "lock.open"}) {
    const bool isWrong = expected == symbol && after.icon != expected;
    if (isOverdue(std::string("icon ") + symbol, isWrong, after.now)) {
      return Violation{"icon", "it is \"" + after.icon + "\"", "icon.symbol \"" + expected + "\""};
    }
  }
  const bool isExpected = std::ranges::any_of(languages_, [&](Language language) {
    const Labels& words = labelsIn(language);
    return after.iconValue == (after.isGuardRunning ? words.locked : words.unlocked);
  });
  if (isOverdue("icon's value", !isExpected && !after.isQueueHeld, after.now)) {
    return Violation{"icon", "its accessibility value is \"" + after.iconValue + "\""};
  }
  return std::nullopt;
}

InvariantChecker::Check InvariantChecker::checkAnnouncement(const Observation& before,
                                                            const Observation& after) {
  const std::string& said = after.lastAnnouncement;
  const bool pins = announcesPin(said);
  const bool prevents = announcesPrevention(said);
  const bool isExpected = pins == (after.isGuardRunning && !after.stored.prevents) &&
                          prevents == (after.isGuardRunning && after.stored.prevents);
  // The application looks once a second, and the guard may stop and start in between.
  const bool isNew = said != before.lastAnnouncement;
  if (isOverdue("announcement", !isExpected && !isNew, after.now, announcementDelay)) {
    return Violation{"announcement", "the last one was \"" + said + "\""};
  }
  // A target that is away stops the guard, too.
  const bool mayStop = before.stored.selected != after.stored.selected;
  if (!before.isLaunched || after.isTrusted || !after.stored.wants || mayStop) {
    isLossUnannounced_ = false;
  } else if (before.isTrusted && before.isGuardRunning) {
    isLossUnannounced_ =
        announcesPin(before.lastAnnouncement) || announcesPrevention(before.lastAnnouncement);
  }
  isLossUnannounced_ = isLossUnannounced_ && !contains(said, "permission is missing") &&
                       !contains(said, "缺少辅助功能权限");
  if (isOverdue("lost permission", isLossUnannounced_, after.now, announcementDelay)) {
    return Violation{"announcement", "the loss of the permission was not announced"};
  }
  if (after.announcementCount <= before.announcementCount) {
    return std::nullopt;
  }
  if (!isInLanguage(languages_, said)) {
    return Violation{"texts", "\"" + said + "\" was announced"};
  }
  // Of displays that share an identifier, any may be named.
  const auto isNamed = [&](const Observation& observation) {
    const auto& displays = observation.snapshot.displays;
    const auto isTarget = [&](const DisplaySnapshot& display) {
      return display.id == after.stored.selected;
    };
    return std::ranges::none_of(displays, isTarget) ||
           std::ranges::any_of(displays, [&](const DisplaySnapshot& display) {
             return isTarget(display) && contains(said, display.name);
           });
  };
  // Tasks that a modal session has held back run before the displays are listed anew. The pin may
  // be announced before the step chooses a target, which then is announced in the next second, or
  // gives the displays names in another language.
  const bool mayNameAnother = before.isQueueHeld || before.stored.selected != after.stored.selected;
  if (pins && !mayNameAnother && !isNamed(before) && !isNamed(after)) {
    return Violation{"announcement", "it names another display than the target"};
  }
  // The end of a missing permission is not announced, so the next one is announced in the same
  // words.
  const bool isRepeated =
      (pins || prevents) && after.announcementCount == before.announcementCount + 1 &&
      said == before.lastAnnouncement && announcedTarget_ == after.stored.selected;
  announcedTarget_ = after.stored.selected;
  return isRepeated ? Check(Violation{"announcement", "it was repeated"}) : std::nullopt;
}

InvariantChecker::Check InvariantChecker::checkMenu(const Observation& after) {
  const auto menu = after.trees.find("menu");
  const bool pins = after.isGuardRunning && !after.stored.prevents;
  const bool prevents = after.isGuardRunning && after.stored.prevents;
  const bool isExpected = !after.isStatusMenuOpen || menu == after.trees.end() ||
                          std::ranges::any_of(languages_, [&](Language language) {
                            const auto pin = findLabel(menu->second, labelsIn(language).pin);
                            const auto prevent =
                                findLabel(menu->second, labelsIn(language).prevent);
                            return pin && prevent && pin->value == (pins ? "1" : "0") &&
                                   prevent->value == (prevents ? "1" : "0");
                          });
  if (isOverdue("menu", !isExpected, after.now)) {
    return Violation{"menu", "its switches do not match the guard"};
  }
  return std::nullopt;
}

InvariantChecker::Check InvariantChecker::checkMainPanel(const Observation& after) {
  const auto panel = after.trees.find("main");
  const bool isUpToDate = panel != after.trees.end() && !after.isQueueHeld;
  const bool pins = after.isGuardRunning && !after.stored.prevents;
  const bool prevents = after.isGuardRunning && after.stored.prevents;
  // A button that is no longer needed fades away.
  const bool isWrong = isUpToDate && hasLabel(panel->second, &Labels::openDockSettings) != prevents;
  if (isOverdue("Dock settings", isWrong, after.now)) {
    return Violation{"panel", "its button for the Dock settings does not match the guard"};
  }
  if (!isUpToDate) {
    return std::nullopt;
  }
  const bool isExpected = std::ranges::any_of(languages_, [&](Language language) {
    const Labels& words = labelsIn(language);
    const auto hasButton = [&](const char* label) {
      return findControl(panel->second, label).has_value();
    };
    const auto hasValue = [&](std::string_view value) {
      return findElement(panel->second,
                         [&](const ui::SemanticsNode& node) {
                           return node.role == ui::Role::staticText && node.value == value;
                         })
          .has_value();
    };
    return hasButton(pins ? words.unpin : words.pin) &&
           !hasButton(pins ? words.pin : words.unpin) &&
           hasButton(prevents ? words.allow : words.prevent) &&
           !hasButton(prevents ? words.prevent : words.allow) &&
           hasValue(pins ? words.pinned : words.notPinned) &&
           hasValue(prevents ? words.enabled : words.off);
  });
  if (!isExpected) {
    return Violation{"panel", "its buttons and pills do not match the guard"};
  }
  return marksTarget(panel->second, after)
             ? std::nullopt
             : Check(Violation{"panel", "its cards do not match the displays"});
}

InvariantChecker::Check InvariantChecker::checkPlaces(const Observation& after) const {
  const auto panel = after.trees.find("main");
  if (panel == after.trees.end() || after.isQueueHeld || isStale() || after.isChangingTogether) {
    return std::nullopt;
  }
  const auto& screens = filter_.configurations().front().screens;
  const std::vector<ui::SemanticsNode> cards = cardsOf(panel->second);
  // After a launch the model lists no displays at first.
  for (std::size_t index = 0; index < std::min(cards.size(), screens.size()); ++index) {
    const char* Labels::*const place = placeOf(screens[index], screens);
    const std::string& value = cards[index].value;
    if (value != labelsIn(Language::english).*place &&
        value != labelsIn(Language::chinese).*place) {
      return Violation{"panel", "\"" + value + "\" on the card of display " +
                                    std::to_string(screens[index].number)};
    }
  }
  return std::nullopt;
}

InvariantChecker::Check InvariantChecker::checkSettings(const Observation& after) {
  const auto panel = after.trees.find("settings");
  // The settings look at the login item once a second while they ask for its approval.
  const bool isApproved = panel != after.trees.end() && hasLabel(panel->second, &Labels::approve) &&
                          machine_.loginItem.status != appkit::LoginItem::Status::requiresApproval;
  if (isOverdue("approval", isApproved, after.now)) {
    return Violation{"settings", "they ask for an approval that is not required"};
  }
  if (panel == after.trees.end()) {
    return std::nullopt;
  }
  const bool hasLanguage = std::ranges::any_of(languages_, [&](Language language) {
    return hasPopUpWith(panel->second, languageItem(after.stored.language, language));
  });
  if (!hasLanguage || !hasPopUpWith(panel->second, shortcutItem(after.stored.modifier))) {
    return Violation{"settings", "they do not show the stored choice"};
  }
  const OrvaneSnapshot& model = after.snapshot;
  const bool hasCaption = std::ranges::any_of(languages_, [&](Language language) {
    const Labels& words = labelsIn(language);
    const auto shows = [&](const std::string& text) {
      return findLabel(panel->second, text).has_value();
    };
    if (model.launchAtLoginRequiresApproval) {
      return shows(words.approve);
    }
    if (model.isLaunchAtLoginBlocked) {
      return shows(words.moveToApplications);
    }
    return model.isLaunchAtLoginFailing ? shows(*model.launchAtLoginErrorMessage)
                                        : !shows(words.approve) && !shows(words.moveToApplications);
  });
  if (!hasCaption) {
    return Violation{"settings", "their caption does not match the login item"};
  }
  return std::nullopt;
}

InvariantChecker::Check InvariantChecker::checkWindows(const Observation& after) const {
  const WindowServer& server = WindowServer::current();
  if ((WindowServer::current().statusBar.item() != nullptr) != after.isLaunched) {
    return Violation{"item", "the status item does not match the application"};
  }
  std::set<std::string> kinds;
  for (const auto& window : server.windows()) {
    if (window->owner != WindowOwner::application) {
      continue;
    }
    if (!after.isLaunched) {
      return Violation{"windows", "a window outlived the application"};
    }
    if (!kinds.insert(window->className).second) {
      return Violation{"windows", "there are two windows of class " + window->className};
    }
    if (server.isVisible(*window) && window->hidesOnDeactivate && !server.modal.isModal(*window)) {
      return Violation{"windows", window->className + " hides when another application is active"};
    }
    // A child window moves with its parent, anywhere.
    const bool mustBeOnADisplay = window->parent.expired() && server.isVisible(*window) &&
                                  after.displayCount > 0 && !after.isChangingTogether;
    if (mustBeOnADisplay && !server.displayIndexOf(*window)) {
      return Violation{"windows", window->className + " is on no display"};
    }
  }
  return std::nullopt;
}

InvariantChecker::Check InvariantChecker::checkModes(const Observation& before,
                                                     const Observation& after) {
  if (after.isModal != after.shows("alert")) {
    return Violation{"modes", "the modal session does not match the alert"};
  }
  if (after.isQueueHeld != after.isModal) {
    return Violation{"modes", "the main queue does not match the modal session"};
  }
  const bool isStandard = machine_.runLoop.mode() == RunLoop::Mode::standard;
  if (isStandard != (!after.isModal && !after.isMenuOpen)) {
    return Violation{"modes", "the run loop is in the wrong mode"};
  }
  const bool hasSucceeded = after.guideState == PermissionGuideState::success;
  if (after.isGuidePolling && (!after.isGuideOpen || hasSucceeded)) {
    return Violation{"guide", "it polls without need", "guide.polling false"};
  }
  if (after.isGuideOpen && !after.isGuidePolling && !hasSucceeded) {
    return Violation{"guide", "it is open but does not poll", "guide.polling true"};
  }
  const bool isChecking = after.isGuideOpen && after.guideState == PermissionGuideState::checking;
  if (isOverdue("time-out", isChecking && isStandard, after.now, guideTimeout)) {
    return Violation{"guide", "it does not time out", "guide.state \"timeout\""};
  }
  if (!after.isGuidePolling) {
    guidePollsSince_.reset();
  } else if (!guidePollsSince_) {
    guidePollsSince_ = before.now;
  }
  if (guidePollsSince_ && after.guideState == PermissionGuideState::timeout &&
      after.now - *guidePollsSince_ < minimumGuideTimeout) {
    return Violation{"guide", "it times out too soon", "guide.state \"checking\""};
  }
  if (isOverdue("success", after.isGuideOpen && hasSucceeded && !after.isQueueHeld, after.now,
                guideSuccess)) {
    return Violation{"guide", "it stays open after its success", "guide.visible false"};
  }
  const int activities = machine_.application.activityCount;
  const bool isActive = after.isLaunched && after.isGuardRunning;
  if (!after.isQueueHeld && after.isLaunched && activities != (isActive ? 1 : 0)) {
    return Violation{"activity", std::to_string(activities) + " activities are running"};
  }
  return std::nullopt;
}

bool InvariantChecker::isInLanguage(const std::set<Language>& languages,
                                    const std::string& text) const {
  // A name in the earlier language may stand beside a word in the present one.
  return languages.size() > 1 || isWrittenIn(*languages.begin(), text, names_);
}

InvariantChecker::Check InvariantChecker::checkTexts(const Observation& after) const {
  for (const auto& [surface, tree] : after.trees) {
    const std::set<Language>& languages = surfaceLanguages_.at(surface);
    for (const ui::SemanticsNode* const element : elementsOf(tree)) {
      for (const std::string* const text : {&element->label, &element->value}) {
        if (!isInLanguage(languages, *text)) {
          return Violation{"texts", "\"" + *text + "\" in " + surface};
        }
      }
    }
  }
  return std::nullopt;
}

}  // namespace orvane::desk::explore
