// Hardware is what the hardware panel changes: the simulated hardware and system, the application's
// process, and the marks on the desktop.
#pragma once

#include "desk/application/ApplicationHost.hpp"
#include "desk/machine/Machine.hpp"

namespace orvane::showroom {

/// Machine and application must outlive it.
struct Hardware {
  desk::Machine& machine;
  desk::ApplicationHost& application;
  bool showsZones = true;

  /// Makes a change and runs the machine's due tasks.
  template <typename Change>
  void change(const Change& make) {
    make(machine);
    machine.runDue();
  }
};

}  // namespace orvane::showroom
