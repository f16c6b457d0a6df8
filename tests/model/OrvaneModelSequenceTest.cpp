// Random sequences of actions by the user, the hardware and the system, applied to the application
// and to a small reference implementation, which are compared after every step.
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "tests/model/SequenceRunner.hpp"

namespace orvane {
namespace {

using reference::Action;
using reference::SequenceRunner;

RC_GTEST_PROP(OrvaneModelSequence, TheApplicationAgreesWithItsReferenceAfterEveryStep, ()) {
  const std::vector<Action> actions = *reference::genActions();
  SequenceRunner runner;
  RC_ASSERT(runner.seen() == runner.expected());
  for (const Action& action : actions) {
    runner.perform(action);
    RC_LOG() << "after " << action << "\n";
    RC_ASSERT(runner.seen() == runner.expected());
    const auto [seen, expected] = runner.outcomes();
    RC_ASSERT(seen.x == expected.x);
    RC_ASSERT(seen.y == expected.y);
  }
  RC_ASSERT(runner.endsCleanly());
}

}  // namespace
}  // namespace orvane
