// PermissionSwarm does what an impatient user and a moody system could do during the permission
// flow, and looks after every step whether all is still in order.
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

/// One step: what is done, and a number that says how, whatever it is.
struct SwarmStep {
  SwarmAction action = SwarmAction::wait;
  unsigned how = 0;
};

/// Two displays and the running application, without the permission.
class PermissionSwarm {
 public:
  PermissionSwarm();

  void take(const SwarmStep& step);
  /// What is not in order; none when everything is.
  [[nodiscard]] std::optional<std::string> complaint() const;
  /// Declines, closes and waits until nothing is left to happen, then says what is left over.
  [[nodiscard]] std::optional<std::string> complaintAtTheEnd();
  /// How many callbacks have been called.
  [[nodiscard]] std::size_t calledBack() const;
  /// Ends the machine and says what it misses or was asked wrongly.
  [[nodiscard]] std::optional<std::string> end();

 private:
  void launch();
  void check();
  void answerAlert(unsigned how);
  void closeGuide(unsigned how);
  void wait(unsigned how);
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
