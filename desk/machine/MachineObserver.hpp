// What the machine tells the window server, which is built on top of it.
#pragma once

#include <cstddef>
#include <optional>

namespace orvane::desk {

class MachineObserver {
 public:
  MachineObserver() = default;
  MachineObserver(const MachineObserver&) = delete;
  MachineObserver& operator=(const MachineObserver&) = delete;
  virtual ~MachineObserver() = default;

  /// Called before the application is notified.
  virtual void displaysChanged() = 0;
  /// The process and its shared objects are gone.
  virtual void processEnded() = 0;
  /// The place in the list of displays of the one with the key window; none without one.
  [[nodiscard]] virtual std::optional<std::size_t> keyDisplayIndex() const = 0;
};

}  // namespace orvane::desk
