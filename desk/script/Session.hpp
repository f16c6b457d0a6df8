// Session is the machine of a script, with the application.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "desk/application/ApplicationHost.hpp"
#include "desk/machine/MachineScope.hpp"

namespace orvane::desk::script {

/// Only one at a time, as a process has one current machine.
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

  /// Ends the machine and starts a new one.
  void reset();
  /// Ends the machine; afterwards only `problems` may be called.
  void end();

  /// The leaked objects and faults of the machines that have ended, one line each.
  [[nodiscard]] const std::vector<std::string>& problems() const { return problems_; }

 private:
  /// The application is destroyed before its machine.
  struct State {
    MachineScope scope;
    ApplicationHost application{scope.machine()};
  };

  void begin();

  Prepare prepare_;
  std::unique_ptr<State> state_;
  std::vector<std::string> problems_;
};

}  // namespace orvane::desk::script
