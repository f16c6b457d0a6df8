// A reference implementation of the state model.
#include "tests/model/ReferenceModel.hpp"

#include <algorithm>

namespace orvane::reference {

namespace {

std::string knownOr(const std::optional<std::string>& text, const std::vector<std::string>& known,
                    const std::string& fallback) {
  return text && std::ranges::find(known, *text) != known.end() ? *text : fallback;
}

}  // namespace

Model::Model(World& world)
    : selected(world.readText("selectedDisplayID")),
      hasPermission(world.isTrusted),
      lastChecked(world.date()),
      language(knownOr(world.readText("appLanguage"), {"english", "chinese"}, "system")),
      modifier(knownOr(world.readText("temporaryUnlockModifier"), {"control", "shift", "command"},
                       "option")),
      prevents(world.readBoolean("hidesDockOnAllDisplays")),
      world_(world) {}

const Screen* Model::listed(const std::string& identifier) const {
  const auto found = std::ranges::find_if(
      listed_, [&](const Screen& screen) { return screen.isNamed(identifier); });
  return found == listed_.end() ? nullptr : &*found;
}

bool Model::isTargetListed() const {
  return selected && listed(*selected) != nullptr;
}

void Model::setSelected(const std::optional<std::string>& id) {
  selected = id;
  if (id) {
    world_.write("selectedDisplayID", *id);
  } else {
    world_.remove("selectedDisplayID");
  }
}

void Model::refresh() {
  listed_ = world_.screens;
  displays.clear();
  for (const Screen& screen : listed_) {
    displays.push_back(screen.id());
  }
  if (!selected) {
    // The first screen is the main one in these sequences.
    setSelected(displays.empty() ? std::nullopt : std::optional(displays.front()));
  } else if (const Screen* const screen = listed(*selected);
             screen != nullptr && screen->id() != *selected) {
    setSelected(screen->id());
  }
  hasPermission = world_.isTrusted;
  lastChecked = world_.date();
}

void Model::select(const std::string& id) {
  if (selected == id) {
    return;
  }
  setSelected(id);
  if (isRunning() && !prevents) {
    restartIfRunning();
  }
}

void Model::start() {
  guard.start(world_, selected.value_or(""), modifier, prevents);
  lastChecked = world_.date();
}

void Model::overtakeRequests() {
  if (!isGranting_) {
    std::ranges::fill(requests, Request::overtaken);
  }
}

void Model::startForTheUser() {
  if (prevents || selected) {
    overtakeRequests();
    start();
    world_.write("isOrvaneEnabled", true);
  }
}

void Model::stopIfRunning() {
  if (isRunning()) {
    overtakeRequests();
    guard.stop();
    world_.write("isOrvaneEnabled", false);
    isUnlocked = false;
    lastChecked = world_.date();
  }
}

void Model::restartIfRunning() {
  if (!isRunning()) {
    return;
  }
  if (prevents || isTargetListed()) {
    start();
  } else {
    guard.stop();
    isUnlocked = false;
  }
}

void Model::toggleLock() {
  if (isRunning()) {
    stopIfRunning();
    if (prevents) {
      setPrevents(false);
    }
    return;
  }
  refresh();
  if (hasPermission) {
    startForTheUser();
  } else {
    ask(Request::lock);
  }
}

void Model::togglePin() {
  const bool pins = isRunning() && !prevents;
  if (!pins) {
    stopIfRunning();
    if (prevents) {
      setPrevents(false);
    }
  }
  toggleLock();
}

void Model::togglePrevent() {
  if (isRunning() && prevents) {
    toggleLock();
    return;
  }
  if (!prevents) {
    refresh();
    if (!hasPermission) {
      ask(Request::prevent);
      return;
    }
  }
  stopIfRunning();
  if (!prevents) {
    setPrevents(true);
  }
  toggleLock();
}

void Model::restore() {
  if (!world_.readBoolean("isOrvaneEnabled")) {
    return;
  }
  refresh();
  if (hasPermission && (prevents || isTargetListed())) {
    start();
  }
}

void Model::setPrevents(bool newPrevents) {
  prevents = newPrevents;
  std::ranges::replace(requests, Request::pin, Request::lock);
  world_.write("hidesDockOnAllDisplays", prevents);
  if (hasPermission) {
    restartIfRunning();
  }
}

void Model::setModifier(const std::string& newModifier) {
  modifier = newModifier;
  world_.write("temporaryUnlockModifier", modifier);
  restartIfRunning();
}

void Model::setLanguage(const std::string& newLanguage) {
  language = newLanguage;
  world_.write("appLanguage", language);
  refresh();
}

void Model::openAccessibilitySettings() {
  hasPermission = world_.isTrusted;
  looks_.push_back(world_.now + 1);
}

void Model::ask(Request request) {
  if (!isAsking) {
    isAsking = true;
    askingEnds_ = world_.now + 1;
    requests.push_back(request);
  }
}

void Model::granted(Request request) {
  if (request == Request::overtaken) {
    return;
  }
  isGranting_ = true;
  hasPermission = true;
  refresh();
  if (request == Request::prevent) {
    stopIfRunning();
    setPrevents(true);
    std::ranges::replace(requests, Request::lock, Request::pin);
    toggleLock();
  } else {
    if (request == Request::pin) {
      setPrevents(false);
    }
    startForTheUser();
  }
  isGranting_ = false;
}

void Model::displaysChanged() {
  if (guard.displaysChanged(world_).isMade) {
    lastChecked = world_.date();
  }
  const bool wasRunning = isRunning();
  refresh();
  if (wasRunning) {
    restartIfRunning();
  }
}

void Model::move(CGPoint place, std::uint64_t flags, CGPoint& outcome) {
  Report report;
  outcome = guard.move(world_, place, flags, report);
  if (report.isMade) {
    lastChecked = world_.date();
  }
}

void Model::settle() {
  // The guard reports every change of it.
  isUnlocked = guard.isUnlocked;
  guard.settle();
}

void Model::catchUp() {
  isAsking = isAsking && askingEnds_ > world_.now;
  if (std::erase_if(looks_, [this](double due) { return due <= world_.now; }) > 0) {
    hasPermission = world_.isTrusted;
  }
}

OrvaneStatus Model::status() const {
  if (!hasPermission) {
    return OrvaneStatus::permissionRequired;
  }
  if (!prevents && selected && !isTargetListed()) {
    return OrvaneStatus::targetMissing;
  }
  const DockPosition edge = world_.dockPosition();
  if (edge == DockPosition::top || edge == DockPosition::unknown) {
    return OrvaneStatus::needsCheck;
  }
  if (isUnlocked) {
    return OrvaneStatus::temporarilyUnlocked;
  }
  return isRunning() ? OrvaneStatus::locked : OrvaneStatus::unlocked;
}

}  // namespace orvane::reference
