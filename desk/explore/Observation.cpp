// Reads the machine, the application's snapshot and the semantics trees.
#include "desk/explore/Observation.hpp"

#include <algorithm>
#include <array>
#include <utility>

#include "desk/windows/Surfaces.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::desk::explore {

namespace {

constexpr std::array<const char*, 5> applicationSurfaces{"menu", "main", "settings", "alert",
                                                         "guide"};

bool reportsBlocks(const GuardMessage& message) {
  return message.text.starts_with("Blocked Dock trigger") || message.text.starts_with("已阻止第");
}

void addWindows(Observation& observation, WindowServer& server) {
  const Surfaces surfaces(server);
  for (const char* const name : applicationSurfaces) {
    if (auto tree = surfaces.tree(name)) {
      observation.trees.emplace(name, std::move(*tree));
      observation.frames.emplace(name, surfaces.frame(name).value_or(CGRect{}));
    }
  }
  for (const auto& window : server.windows()) {
    if (window->className == "OrvaneWindow") {
      observation.isMainOpen = true;
      observation.isMainMinimised = window->isMiniaturized;
    }
    observation.isSettingsOpen =
        observation.isSettingsOpen || window->className == "OrvaneSettingsWindow";
    observation.isGuideOpen = observation.isGuideOpen || window->className == "OrvaneGuidePanel";
  }
  if (const auto key = server.focus.keyWindow()) {
    observation.keySurface = Surfaces::nameOf(*key);
  }
  if (const StatusBarItem* const item = server.statusBar.item()) {
    observation.icon = item->image != nullptr ? item->image->name : "";
    observation.iconValue = item->accessibilityValue;
  }
}

void addElements(const ui::SemanticsNode& node, std::vector<const ui::SemanticsNode*>& elements) {
  elements.push_back(&node);
  for (const ui::SemanticsNode& child : node.children) {
    addElements(child, elements);
  }
}

}  // namespace

Observation Observation::of(const Machine& machine, const ApplicationHost& application) {
  WindowServer& server = WindowServer::current();
  Observation observation;
  observation.now = machine.clock.now();
  observation.isLaunched = application.isRunning();
  observation.isTrusted = machine.permission.isTrusted();
  observation.isModal = server.modal.isRunning();
  observation.isQueueHeld = machine.runLoop.isMainQueueHeld();
  observation.isMenuOpen = server.menus.isOpen();
  observation.isStatusMenuOpen = server.menus.isStatusMenuOpen();
  observation.isChangingTogether = machine.displays.isChanging();
  observation.displayCount = machine.displays.count();
  observation.pointer = machine.pointer.location();
  observation.tapCount = machine.eventTaps.aliveCount();
  observation.linkCount = machine.links.opened().size();
  observation.isTapEnabled = machine.eventTaps.isAnyEnabled();
  observation.stored = Stored::of(machine.userDefaults);
  addWindows(observation, server);
  if (!observation.isLaunched) {
    return observation;
  }
  observation.snapshot = application.snapshot();
  const GuardSnapshot& guard = observation.snapshot.guard;
  observation.isGuardRunning = guard.isRunning;
  observation.isGuardWaiting = !guard.isRunning && guard.isObservingScreens;
  observation.isUnlocked = guard.isTemporarilyUnlocked;
  observation.blockedCount = guard.blockedCount;
  observation.hasPermission = observation.snapshot.hasAccessibilityPermission;
  observation.status = observation.snapshot.status;
  observation.isGuidePolling = observation.snapshot.guide.isPolling;
  observation.guideState = observation.snapshot.guide.state;
  const std::vector<GuardMessage>& messages = application.messages();
  observation.messageCount = messages.size();
  if (!messages.empty()) {
    observation.lastMessage = messages.back().text;
  }
  if (messages.size() > 1 && std::all_of(messages.end() - 2, messages.end(), reportsBlocks)) {
    observation.reportTimes = {(messages.end() - 2)->atNanoseconds, messages.back().atNanoseconds};
  }
  if (!server.announcements.empty()) {
    observation.lastAnnouncement = server.announcements.back();
  }
  observation.announcementCount = server.announcements.size();
  return observation;
}

void Observation::addTo(Fingerprint& fingerprint) const {
  fingerprint.add(now);
  for (const bool flag :
       {isLaunched, isTrusted, isModal, isQueueHeld, isMenuOpen, isStatusMenuOpen,
        isChangingTogether, isTapEnabled, isGuardRunning, isGuardWaiting, isUnlocked, hasPermission,
        isGuideOpen, isGuidePolling, isMainMinimised, stored.wants, stored.prevents,
        snapshot.isPermissionStale, snapshot.isRestoreBlocked}) {
    fingerprint.add(flag);
  }
  fingerprint.add(static_cast<std::uint64_t>(displayCount));
  fingerprint.add(static_cast<std::uint64_t>(tapCount));
  fingerprint.add(blockedCount);
  fingerprint.add(static_cast<std::uint64_t>(status));
  fingerprint.add(static_cast<std::uint64_t>(guideState));
  fingerprint.add(static_cast<std::uint64_t>(messageCount));
  for (const std::string& text : {stored.selected.value_or(""), stored.modifier, stored.language,
                                  icon, iconValue, lastMessage, lastAnnouncement}) {
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
