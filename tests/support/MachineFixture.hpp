// MachineFixture gives each test a machine of its own, with a running process unless it wants none,
// and sees at the end that no Core Foundation object is left and that none was misused.
#pragma once

#include <gtest/gtest.h>

#include "desk/machine/MachineScope.hpp"

namespace orvane::desk {

/// The end comes when the fixture is destroyed: after the locals of the test and the members of
/// fixtures derived from this one, so that what they own is released by then.
class MachineFixture : public testing::Test {
 public:
  ~MachineFixture() override {
    const MachineEnd end = scope_.end();
    for (const std::string& object : end.leftObjects) {
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
