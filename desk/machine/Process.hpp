// The simulated process of the application. Tasks, timers, observers, taps and preference copies
// belong to it and end with it; defaults, login item and permission survive.
#pragma once

namespace orvane::desk {

class Machine;

class Process {
 public:
  enum class State { notRunning, running, ending };

  explicit Process(Machine& machine) : machine_(machine) {}

  /// Starts a process; does nothing when one is running.
  void start();
  /// Ends the process, in order or by a crash: destroys what is pending without running it, then
  /// the shared objects of the process, then reclaims what is left. Calls from those destructors
  /// have no effect that outlives the process. Leaked Core Foundation objects are reported when the
  /// machine ends, not here.
  void end();

  [[nodiscard]] State state() const { return state_; }
  [[nodiscard]] bool isRunning() const { return state_ == State::running; }

 private:
  Machine& machine_;
  State state_ = State::notRunning;
};

}  // namespace orvane::desk
