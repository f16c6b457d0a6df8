// A reference implementation of the guard.
#include "tests/model/ReferenceGuard.hpp"

#include "tests/support/EdgeOracle.hpp"

namespace orvane::reference {

namespace {

Zone zoneAlong(const oracle::Stretch& stretch, const CGRect& frame, DockPosition edge) {
  const double length = stretch.end - stretch.start;
  const double right = frame.origin.x + frame.size.width;
  const double bottom = frame.origin.y + frame.size.height;
  switch (edge) {
    case DockPosition::left:
      return {{{frame.origin.x, stretch.start}, {12, length}}, {12, 0}};
    case DockPosition::right:
      return {{{right - 12, stretch.start}, {12, length}}, {-12, 0}};
    default:
      return {{{stretch.start, bottom - 12}, {length, 12}}, {0, -12}};
  }
}

std::uint64_t maskOf(const std::string& modifier) {
  if (modifier == "control") {
    return 0x40000;
  }
  if (modifier == "shift") {
    return 0x20000;
  }
  return modifier == "command" ? 0x100000 : 0x80000;
}

}  // namespace

void Guard::refreshZones(const World& world) {
  zones.clear();
  const DockPosition edge = world.dockPosition();
  const Screen* const targetScreen = world.find(target);
  if (edge == DockPosition::top || edge == DockPosition::unknown) {
    return;
  }
  if (!blocksAll && (targetScreen == nullptr || world.screens.size() < 2)) {
    return;
  }
  std::vector<CGRect> frames;
  for (const Screen& screen : world.screens) {
    frames.push_back(screen.frame);
  }
  for (const Screen& screen : world.screens) {
    if (!blocksAll && &screen == targetScreen) {
      continue;
    }
    for (const oracle::Stretch& stretch : oracle::exposedStretches(screen.frame, edge, frames, 1)) {
      zones.push_back(zoneAlong(stretch, screen.frame, edge));
    }
  }
}

void Guard::takeTapDown() {
  hasTap = false;
  tapIsDead = false;
  isShuttingOff = false;
}

Report Guard::putTapUp(const World& world) {
  // Reports success or failure.
  hasTap = world.isTrusted && !world.refusesTaps;
  return {.isMade = true};
}

Report Guard::start(const World& world, const std::string& newTarget,
                    const std::string& newModifier, bool newBlocksAll) {
  if (!world.isTrusted) {
    return {.isMade = true};
  }
  target = newTarget;
  modifier = newModifier;
  blocksAll = newBlocksAll;
  takeTapDown();
  refreshZones(world);
  if (!zones.empty()) {
    putTapUp(world);
  }
  isUnlocked = isUnlocked && hasTap;
  observes = true;
  return {.isMade = true};
}

void Guard::stop() {
  takeTapDown();
  observes = false;
  zones.clear();
  blocksAll = false;
  recent.clear();
  lastReport = 0;
  isUnlocked = false;
}

Report Guard::displaysChanged(const World& world) {
  if (!observes) {
    return {};
  }
  if (!blocksAll && !target.empty() && world.find(target) == nullptr) {
    zones.clear();
    takeTapDown();
    isUnlocked = false;
    return {.isMade = true};
  }
  refreshZones(world);
  if (zones.empty()) {
    takeTapDown();
    isUnlocked = false;
    return {};
  }
  return hasTap ? Report{} : putTapUp(world);
}

CGPoint Guard::move(const World& world, CGPoint place, std::uint64_t flags, Report& report) {
  if (!hasTap || tapIsDead || isShuttingOff) {
    return place;
  }
  isUnlocked = (flags & maskOf(modifier)) != 0;
  if (isUnlocked) {
    return place;
  }
  for (const Zone& zone : zones) {
    const CGPoint& corner = zone.rect.origin;
    if (place.x < corner.x || place.x >= corner.x + zone.rect.size.width || place.y < corner.y ||
        place.y >= corner.y + zone.rect.size.height) {
      continue;
    }
    ++blocked;
    const double now = world.mediaTime();
    recent.push_back(now);
    std::erase_if(recent, [now](double time) { return now - time > 2; });
    if (recent.size() >= 180) {
      isShuttingOff = true;
    } else if (now - lastReport >= 1) {
      lastReport = now;
      report.isMade = true;
    }
    return {place.x + zone.nudge.dx, place.y + zone.nudge.dy};
  }
  return place;
}

void Guard::settle() {
  if (isShuttingOff) {
    takeTapDown();
    zones.clear();
    recent.clear();
    lastReport = 0;
  }
}

}  // namespace orvane::reference
