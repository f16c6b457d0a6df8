// PermissionSwarm performs what an impatient user and an erratic system might do during the
// permission flow, and checks the invariants after every step.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "desk/application/ApplicationHost.hpp"
#include "desk/hand/Hand.hpp"
#include "desk/machine/MachineScope.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane {

enum class SwarmAction : std::uint8_t {
  check,
  togglePin,
  togglePrevent,
  answerAlert,
  closeGuide,
  wait,
  grant,
  revoke,
  switchInSettings,
  dropIcon,
  openMenu,
  closeMenu,
  openSettings,
  closeSettings,
  click,
  changeDisplays,
  showPanels,
  quitAndLaunch,
  count,
};

/// One step: an action and a number that selects its variant.
struct SwarmStep {
  SwarmAction action = SwarmAction::wait;
  unsigned how = 0;
};

/// Two displays and the running application, without the permission.
class PermissionSwarm {
 public:
  PermissionSwarm();

  void take(const SwarmStep& step);
  /// A violated invariant; none when all hold.
  [[nodiscard]] std::optional<std::string> problem() const;
  /// Declines, closes and waits until nothing is pending, then reports what is left.
  [[nodiscard]] std::optional<std::string> problemAtTheEnd();
  /// How many callbacks have been called.
  [[nodiscard]] std::size_t calledBack() const;
  /// Ends the machine and reports a leaked object or a fault.
  [[nodiscard]] std::optional<std::string> end();

 private:
  void launch();
  void check();
  void answerAlert(unsigned how);
  void closeGuide(unsigned how);
  void act(const SwarmStep& step);
  void wait(unsigned how);
  void closeSettings();
  void quitAndLaunch(unsigned how);
  void dropIcon();
  void changeDisplays();
  bool press(const std::string& surface, const std::string& label);
  [[nodiscard]] std::size_t visibleCount(const std::string& className) const;

  desk::MachineScope scope_;
  desk::Machine& machine_ = scope_.machine();
  desk::Hand hand_{machine_};
  desk::WindowServer& server_;
  desk::ApplicationHost application_;
  /// How often each check's callback was called.
  std::vector<int> calls_;
  std::size_t timersAtRest_ = 0;
};

}  // namespace orvane
