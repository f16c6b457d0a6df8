// Random sequences of what users, hardware and the system do, on the application and on a small
// reference of it, compared after every step.
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
