// Session is the machine that a script works on, with the application on it.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "desk/application/ApplicationHost.hpp"
#include "desk/machine/MachineScope.hpp"

namespace orvane::desk::script {

/// Only one at a time, since there is one current machine in a process.
class Session {
 public:
  using Prepare = std::function<void(ApplicationHost&)>;

  /// `prepare` is called for the first machine and after each reset; may be empty.
  explicit Session(Prepare prepare = {});
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;
  /// Ends the machine.
  ~Session();

  [[nodiscard]] Machine& machine() const { return state_->scope.machine(); }
  [[nodiscard]] ApplicationHost& application() const { return state_->application; }

  /// A new machine takes the place of the old one, which ends with all that was on it.
  void reset();
  /// Ends the machine for good; nothing else may be asked of the session afterwards.
  void end();

  /// What the application left behind or did wrong on the machines that have ended, one line each.
  [[nodiscard]] const std::vector<std::string>& mistakes() const { return mistakes_; }

 private:
  /// The application belongs to its machine and goes before it.
  struct State {
    MachineScope scope;
    ApplicationHost application{scope.machine()};
  };

  void begin();

  Prepare prepare_;
  std::unique_ptr<State> state_;
  std::vector<std::string> mistakes_;
};

}  // namespace orvane::desk::script
