// Starts and ends the application on the simulated Mac, and listens to what its guard reports.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Orvane/app/OrvaneSnapshot.hpp"
#include "Orvane/model/OrvaneModel.hpp"
#include "desk/machine/Machine.hpp"

namespace orvane::desk {

/// A message of the guard and when it came, by the machine's clock.
struct GuardMessage {
  std::int64_t atNanoseconds;
  std::string text;
};

/// Belongs to one machine and ends before it.
class ApplicationHost {
 public:
  explicit ApplicationHost(Machine& machine) : machine_(machine) {}
  ApplicationHost(const ApplicationHost&) = delete;
  ApplicationHost& operator=(const ApplicationHost&) = delete;

  /// Starts the application; nothing when it runs already.
  void launch();
  /// The user opens it again while it runs; nothing when it does not.
  void reopen();
  /// Quits it in order.
  void terminate();
  /// Ends it without a word.
  void crash();

  [[nodiscard]] bool isRunning() const { return machine_.process.isRunning(); }
  /// What the application is and shows; also while it does not run.
  [[nodiscard]] OrvaneSnapshot snapshot() const;
  /// To operate it; it must be running.
  [[nodiscard]] OrvaneModel& model() const;
  /// Every message since the last launch.
  [[nodiscard]] const std::vector<GuardMessage>& messages() const { return messages_; }
  /// When it was launched, by the machine's clock; 0 before the first launch.
  [[nodiscard]] std::int64_t launchedAtNanoseconds() const { return launchedAt_; }

 private:
  void listenToGuard();

  Machine& machine_;
  std::vector<GuardMessage> messages_;
  std::int64_t launchedAt_ = 0;
};

}  // namespace orvane::desk
