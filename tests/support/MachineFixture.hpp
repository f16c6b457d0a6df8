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
    for (const std::string& problem : scope_.end()) {
      ADD_FAILURE() << problem;
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
