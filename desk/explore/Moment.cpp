// Looking at machine and application without touching them.
#include "desk/explore/Moment.hpp"

#include <array>
#include <string_view>
#include <utility>
#include <variant>

#include "desk/windows/Surfaces.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::desk::explore {

namespace {

constexpr std::array<const char*, 5> surfacesOfTheApplication{"menu", "main", "settings", "alert",
                                                              "guide"};

template <typename Value>
std::optional<Value> valueOf(const UserDefaultsStore& defaults, std::string_view key) {
  const auto value = defaults.value(key);
  const auto* const typed = value ? std::get_if<Value>(&*value) : nullptr;
  return typed == nullptr ? std::nullopt : std::optional(*typed);
}

/// The text when it is one of these; otherwise the first of them.
template <std::size_t count>
std::string oneOf(const std::array<std::string_view, count>& known,
                  const std::optional<std::string>& text) {
  for (const std::string_view word : known) {
    if (text == word) {
      return std::string(word);
    }
  }
  return std::string(known.front());
}

void addWindows(Moment& moment, WindowServer& server) {
  const Surfaces surfaces(server);
  for (const char* const name : surfacesOfTheApplication) {
    if (auto tree = surfaces.tree(name)) {
      moment.trees.emplace(name, std::move(*tree));
    }
  }
  for (const auto& window : server.windows()) {
    if (window->className == "OrvaneWindow") {
      moment.isMainMinimised = window->isMiniaturized;
    }
    moment.isGuideOpen = moment.isGuideOpen || window->className == "OrvaneGuidePanel";
  }
  if (const StatusBarItem* const item = server.statusBar.item()) {
    moment.icon = item->image != nullptr ? item->image->name : "";
    moment.iconValue = item->accessibilityValue;
  }
}

void addElements(const ui::SemanticsNode& node, std::vector<const ui::SemanticsNode*>& elements) {
  elements.push_back(&node);
  for (const ui::SemanticsNode& child : node.children) {
    addElements(child, elements);
  }
}

}  // namespace

Stored Stored::of(const UserDefaultsStore& defaults) {
  constexpr std::array<std::string_view, 4> modifiers{"option", "control", "shift", "command"};
  constexpr std::array<std::string_view, 3> languages{"system", "english", "chinese"};
  Stored stored;
  stored.selected = valueOf<std::string>(defaults, "selectedDisplayID");
  if (stored.selected && stored.selected->empty()) {
    stored.selected.reset();
  }
  stored.wants = valueOf<bool>(defaults, "isOrvaneEnabled").value_or(false);
  stored.prevents = valueOf<bool>(defaults, "hidesDockOnAllDisplays").value_or(false);
  stored.modifier = oneOf(modifiers, valueOf<std::string>(defaults, "temporaryUnlockModifier"));
  stored.language = oneOf(languages, valueOf<std::string>(defaults, "appLanguage"));
  return stored;
}

std::uint64_t Stored::unlockMask() const {
  if (modifier == "control") {
    return 0x40000;
  }
  if (modifier == "shift") {
    return 0x20000;
  }
  return modifier == "command" ? 0x100000 : 0x80000;
}

Moment Moment::of(const Machine& machine, const ApplicationHost& application) {
  WindowServer& server = WindowServer::current();
  Moment moment;
  moment.now = machine.clock.now();
  moment.isLaunched = application.isRunning();
  moment.isTrusted = machine.permission.isTrusted();
  moment.isModal = server.modal.isRunning();
  moment.isQueueHeld = machine.runLoop.isMainQueueHeld();
  moment.isMenuOpen = server.menus.isOpen();
  moment.isStatusMenuOpen = server.menus.isStatusMenuOpen();
  moment.isChangingTogether = machine.displays.isTogether();
  moment.displayCount = machine.displays.count();
  moment.tapCount = machine.eventTaps.aliveCount();
  moment.isTapEnabled = machine.eventTaps.isAnyEnabled();
  moment.stored = Stored::of(machine.userDefaults);
  addWindows(moment, server);
  if (!moment.isLaunched) {
    return moment;
  }
  const OrvaneModel& model = application.model();
  moment.snapshot = application.snapshot();
  const GuardSnapshot& guard = moment.snapshot.guard;
  moment.isGuardRunning = guard.isRunning;
  moment.isGuardWaiting = !guard.isRunning && guard.isObservingScreens;
  moment.isUnlocked = guard.isTemporarilyUnlocked;
  moment.blockedCount = guard.blockedCount;
  moment.hasPermission = moment.snapshot.hasAccessibilityPermission;
  moment.status = moment.snapshot.status;
  moment.isGuidePolling = moment.snapshot.guide.isPolling;
  moment.guideState = moment.snapshot.guide.state;
  moment.isTapRefused = model.guardService().wasTapRefused();
  moment.isDoubted = model.isPermissionStale();
  moment.isRestoreBlocked = model.isRestoreBlocked();
  moment.messageCount = application.messages().size();
  if (!application.messages().empty()) {
    moment.lastMessage = application.messages().back().text;
  }
  return moment;
}

void Moment::addTo(Fingerprint& fingerprint) const {
  fingerprint.add(now);
  for (const bool fact :
       {isLaunched,       isTrusted,          isModal,         isQueueHeld,      isMenuOpen,
        isStatusMenuOpen, isChangingTogether, isTapEnabled,    isGuardRunning,   isGuardWaiting,
        isTapRefused,     isDoubted,          isUnlocked,      isRestoreBlocked, hasPermission,
        isGuideOpen,      isGuidePolling,     isMainMinimised, stored.wants,     stored.prevents}) {
    fingerprint.add(fact);
  }
  fingerprint.add(static_cast<std::uint64_t>(displayCount));
  fingerprint.add(static_cast<std::uint64_t>(tapCount));
  fingerprint.add(blockedCount);
  fingerprint.add(static_cast<std::uint64_t>(status));
  fingerprint.add(static_cast<std::uint64_t>(guideState));
  fingerprint.add(static_cast<std::uint64_t>(messageCount));
  for (const std::string& text : {stored.selected.value_or(""), stored.modifier, stored.language,
                                  icon, iconValue, lastMessage}) {
    fingerprint.add(std::string_view(text));
  }
  for (const auto& [name, tree] : trees) {
    for (const ui::SemanticsNode* const element : elementsOf(tree)) {
      fingerprint.add(std::string_view(element->label));
      fingerprint.add(std::string_view(element->value));
      fingerprint.add(element->frame.x);
      fingerprint.add(element->frame.y);
      fingerprint.add(element->isEnabled);
      fingerprint.add(element->isFocused);
    }
  }
}

std::vector<const ui::SemanticsNode*> elementsOf(const ui::SemanticsNode& root) {
  std::vector<const ui::SemanticsNode*> elements;
  addElements(root, elements);
  return elements;
}

}  // namespace orvane::desk::explore
