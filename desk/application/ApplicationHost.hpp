// Starts and ends the application on the simulated Mac, and records its guard's messages.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Orvane/app/OrvaneSnapshot.hpp"
#include "Orvane/model/OrvaneModel.hpp"
#include "desk/machine/Machine.hpp"
#include "desk/settings/SystemSettings.hpp"

namespace orvane::desk {

/// A message of the guard and its time by the machine's clock.
struct GuardMessage {
  std::int64_t atNanoseconds;
  std::string text;
};

/// Belongs to one machine, which must outlive it.
class ApplicationHost {
 public:
  /// Installs System Settings, which runs independently of the application.
  explicit ApplicationHost(Machine& machine);
  ApplicationHost(const ApplicationHost&) = delete;
  ApplicationHost& operator=(const ApplicationHost&) = delete;

  /// Does nothing when the application is running.
  void launch();
  /// The user opens the running application again; does nothing when it is not running.
  void reopen();
  /// Quits the application.
  void terminate();
  /// Ends the process without notice.
  void crash();

  [[nodiscard]] SystemSettings& systemSettings() const { return systemSettings_; }
  [[nodiscard]] bool isRunning() const { return machine_.process.isRunning(); }
  /// A default snapshot while it is not running.
  [[nodiscard]] OrvaneSnapshot snapshot() const;
  /// The application must be running.
  [[nodiscard]] OrvaneModel& model() const;
  /// Every message since the last launch.
  [[nodiscard]] const std::vector<GuardMessage>& messages() const { return messages_; }
  /// The time of the last launch by the machine's clock; 0 before the first launch.
  [[nodiscard]] std::int64_t launchedAtNanoseconds() const { return launchedAt_; }

 private:
  Machine& machine_;
  SystemSettings& systemSettings_;
  std::vector<GuardMessage> messages_;
  std::int64_t launchedAt_ = 0;
};

}  // namespace orvane::desk
