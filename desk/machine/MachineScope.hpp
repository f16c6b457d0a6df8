// MachineScope switches a machine on, makes it the current one, and switches it off again.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "desk/machine/Machine.hpp"

namespace orvane::desk {

/// Only one at a time.
class MachineScope {
 public:
  MachineScope();
  MachineScope(const MachineScope&) = delete;
  MachineScope& operator=(const MachineScope&) = delete;
  /// Ends the machine unless end() has.
  ~MachineScope();

  [[nodiscard]] Machine& machine() const { return *machine_; }
  Machine* operator->() const { return machine_.get(); }

  /// Ends the process, if one is running, and the machine. Returns the leaked Core Foundation
  /// objects and the faults, one line each.
  std::vector<std::string> end();

 private:
  std::unique_ptr<Machine> machine_;
};

}  // namespace orvane::desk
