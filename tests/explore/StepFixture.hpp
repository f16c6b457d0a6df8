// StepFixture makes steps of an application that runs, for checks that look at one step.
#pragma once

#include <string>

#include <gtest/gtest.h>

#include "desk/explore/Step.hpp"
#include "desk/machine/MachineScope.hpp"

namespace orvane::desk::explore {

class StepFixture : public testing::Test {
 protected:
  StepFixture() {
    for (Observation* const observation : {&before, &after}) {
      observation->isLaunched = true;
      observation->isTrusted = true;
      observation->hasPermission = true;
    }
  }

  /// A step with `line`, from `before` to `after`, at the present time of the machine.
  [[nodiscard]] Step step(const std::string& text) {
    line = text;
    after.now = machine().clock.now();
    return {line, line, true, before, after, filter, false, false, machine()};
  }
  [[nodiscard]] Machine& machine() const { return scope.machine(); }

  MachineScope scope;
  Observation before;
  Observation after;
  FilterWatch::Step filter;
  std::string line;
};

}  // namespace orvane::desk::explore
