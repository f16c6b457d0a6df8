// One step of a random sequence: an action of the user, the hardware or the system.
#pragma once

#include <array>
#include <cstddef>
#include <ostream>
#include <vector>

#include <rapidcheck.h>

namespace orvane::reference {

struct Action {
  enum class Kind {
    launch,
    quit,
    crash,
    corruptStorage,
    attach,
    detach,
    moveScreen,
    renumber,
    setDockEdge,
    setTrusted,
    refuseTaps,
    holdKeys,
    movePointer,
    disableTaps,
    passTime,
    toggleLock,
    togglePin,
    togglePrevent,
    selectDisplay,
    setModifier,
    setLanguage,
    setPrevents,
    refresh,
    openAccessibilitySettings,
    grant,
  };
  Kind kind;
  /// Parameters, whose meaning depends on the kind.
  std::size_t first;
  std::size_t second;
};

struct KindOfAction {
  Action::Kind kind;
  const char* name;
  std::size_t weight;
};

inline constexpr std::array<KindOfAction, 25> kindsOfActions = {{
    {Action::Kind::launch, "launch", 3},
    {Action::Kind::quit, "quit", 1},
    {Action::Kind::crash, "crash", 1},
    {Action::Kind::corruptStorage, "corruptStorage", 1},
    {Action::Kind::attach, "attach", 5},
    {Action::Kind::detach, "detach", 4},
    {Action::Kind::moveScreen, "moveScreen", 3},
    {Action::Kind::renumber, "renumber", 2},
    {Action::Kind::setDockEdge, "setDockEdge", 3},
    {Action::Kind::setTrusted, "setTrusted", 4},
    {Action::Kind::refuseTaps, "refuseTaps", 1},
    {Action::Kind::holdKeys, "holdKeys", 4},
    {Action::Kind::movePointer, "movePointer", 10},
    {Action::Kind::disableTaps, "disableTaps", 1},
    {Action::Kind::passTime, "passTime", 6},
    {Action::Kind::toggleLock, "toggleLock", 3},
    {Action::Kind::togglePin, "togglePin", 5},
    {Action::Kind::togglePrevent, "togglePrevent", 5},
    {Action::Kind::selectDisplay, "selectDisplay", 4},
    {Action::Kind::setModifier, "setModifier", 3},
    {Action::Kind::setLanguage, "setLanguage", 1},
    {Action::Kind::setPrevents, "setPrevents", 1},
    {Action::Kind::refresh, "refresh", 2},
    {Action::Kind::openAccessibilitySettings, "openAccessibilitySettings", 1},
    {Action::Kind::grant, "grant", 3},
}};

inline std::ostream& operator<<(std::ostream& out, const Action& action) {
  for (const KindOfAction& one : kindsOfActions) {
    if (one.kind == action.kind) {
      return out << one.name << "(" << action.first << ", " << action.second << ")";
    }
  }
  return out << "?";
}

/// Sequences in which common actions are frequent.
inline rc::Gen<std::vector<Action>> genActions() {
  std::vector<Action::Kind> pool;
  for (const KindOfAction& one : kindsOfActions) {
    pool.insert(pool.end(), one.weight, one.kind);
  }
  return rc::gen::container<std::vector<Action>>(
      rc::gen::construct<Action>(rc::gen::elementOf(pool), rc::gen::inRange<std::size_t>(0, 8),
                                 rc::gen::inRange<std::size_t>(0, 8)));
}

}  // namespace orvane::reference
