// MachineScope switches a machine on, makes it the current one, and switches it off again.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "desk/machine/Machine.hpp"

namespace orvane::desk {

/// What was wrong when a machine was switched off; all empty when nothing was.
struct MachineEnd {
  /// Core Foundation objects that nobody released, one line each.
  std::vector<std::string> leftObjects;
  std::vector<std::string> faults;

  [[nodiscard]] bool isClean() const { return leftObjects.empty() && faults.empty(); }
};

/// Only one at a time.
class MachineScope {
 public:
  MachineScope();
  MachineScope(const MachineScope&) = delete;
  MachineScope& operator=(const MachineScope&) = delete;
  /// Ends the machine if that has not been done.
  ~MachineScope();

  [[nodiscard]] Machine& machine() const { return *machine_; }
  Machine* operator->() const { return machine_.get(); }

  /// Ends the process, if one runs, and the machine, and says what was left.
  MachineEnd end();

 private:
  std::unique_ptr<Machine> machine_;
};

}  // namespace orvane::desk
