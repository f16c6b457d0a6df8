// The simulated process of the application. Tasks, timers, observers, taps and preference copies
// belong to it and end with it; defaults, login item and permission stay.
#pragma once

namespace orvane::desk {

class Machine;

class Process {
 public:
  enum class State { notRunning, running, ending };

  explicit Process(Machine& machine) : machine_(machine) {}

  /// Begins a process; one that runs already goes on.
  void start();
  /// Ends it, in order or by a crash: what is pending is destroyed without being run, then the
  /// shared objects of the process are destroyed, then the system takes back what was left. Nothing
  /// that those destructors ask of the machine has an effect that outlives the process. Core
  /// Foundation objects that are left are told at the machine's end, not here.
  void end();

  [[nodiscard]] State state() const { return state_; }
  [[nodiscard]] bool isRunning() const { return state_ == State::running; }

 private:
  Machine& machine_;
  State state_ = State::notRunning;
};

}  // namespace orvane::desk
