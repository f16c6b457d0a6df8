// Invariants of the permission flow under any sequence of actions of the user and the system: never
// two alerts, never two guides, never a callback twice, no modal session and no timer left behind.
#include <ostream>
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "tests/permission/PermissionSwarm.hpp"

namespace orvane {

void showValue(const SwarmStep& step, std::ostream& stream) {
  constexpr std::array<const char*, static_cast<std::size_t>(SwarmAction::count)> names{
      "check",          "togglePin",  "togglePrevent", "answerAlert",      "closeGuide",
      "wait",           "grant",      "revoke",        "switchInSettings", "dropIcon",
      "openMenu",       "closeMenu",  "openSettings",  "closeSettings",    "click",
      "changeDisplays", "showPanels", "quitAndLaunch"};
  stream << names[static_cast<std::size_t>(step.action)] << " " << step.how;
}

}  // namespace orvane

namespace rc {

template <>
struct Arbitrary<orvane::SwarmStep> {
  static Gen<orvane::SwarmStep> arbitrary() {
    using orvane::SwarmAction;
    // Actions that continue the flow are more frequent than those that end it.
    return gen::build<orvane::SwarmStep>(
        gen::set(&orvane::SwarmStep::action,
                 gen::weightedElement<SwarmAction>({{5, SwarmAction::check},
                                                    {3, SwarmAction::togglePin},
                                                    {2, SwarmAction::togglePrevent},
                                                    {9, SwarmAction::answerAlert},
                                                    {3, SwarmAction::closeGuide},
                                                    {10, SwarmAction::wait},
                                                    {2, SwarmAction::grant},
                                                    {2, SwarmAction::revoke},
                                                    {2, SwarmAction::switchInSettings},
                                                    {2, SwarmAction::dropIcon},
                                                    {2, SwarmAction::openMenu},
                                                    {2, SwarmAction::closeMenu},
                                                    {1, SwarmAction::openSettings},
                                                    {1, SwarmAction::closeSettings},
                                                    {2, SwarmAction::click},
                                                    {1, SwarmAction::changeDisplays},
                                                    {1, SwarmAction::showPanels},
                                                    {1, SwarmAction::quitAndLaunch}})),
        gen::set(&orvane::SwarmStep::how, gen::inRange(0U, 1000U)));
  }
};

}  // namespace rc

namespace orvane {
namespace {

RC_GTEST_PROP(PermissionSwarmTest, NothingHappensTwiceAndNothingIsLeftBehind,
              (const std::vector<SwarmStep>& steps)) {
  PermissionSwarm swarm;
  for (const SwarmStep& step : steps) {
    swarm.take(step);
    if (const auto found = swarm.problem()) {
      RC_FAIL(*found);
    }
  }
  RC_CLASSIFY(swarm.calledBack() > 0, "a callback was called");
  RC_CLASSIFY(swarm.calledBack() > 1, "two callbacks were called");
  if (const auto found = swarm.problemAtTheEnd()) {
    RC_FAIL(*found);
  }
  if (const auto found = swarm.end()) {
    RC_FAIL(*found);
  }
}

}  // namespace
}  // namespace orvane
