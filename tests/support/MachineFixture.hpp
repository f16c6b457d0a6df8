// MachineFixture gives each test its own machine, by default with a running process, and checks at
// the end that no Core Foundation object was leaked or misused.
#pragma once

#include <gtest/gtest.h>

#include "desk/machine/MachineScope.hpp"

namespace orvane::desk {

/// The check runs when the fixture is destroyed: after the test's locals and the members of derived
/// fixtures, so that what they own has been released.
class MachineFixture : public testing::Test {
 public:
  ~MachineFixture() override {
    const MachineEnd end = scope_.end();
    for (const std::string& object : end.leakedObjects) {
      ADD_FAILURE() << "not released: " << object;
    }
    for (const std::string& fault : end.faults) {
      ADD_FAILURE() << "fault: " << fault;
    }
  }

 private:
  MachineScope scope_;

 protected:
  enum class Process { running, none };

  explicit MachineFixture(Process process = Process::running) {
    if (process == Process::running) {
      machine.process.start();
    }
  }

  Machine& machine = scope_.machine();
};

}  // namespace orvane::desk
