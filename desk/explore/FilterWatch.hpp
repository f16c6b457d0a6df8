// FilterWatch sees every event on its way through the taps, and says whether the guard's filter may
// do with it what it does.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "desk/application/ApplicationHost.hpp"
#include "desk/explore/Situation.hpp"
#include "desk/explore/Violation.hpp"
#include "desk/machine/EventWitness.hpp"

namespace orvane::desk::explore {

class FilterWatch : public EventWitness {
 public:
  FilterWatch(Machine& machine, const ApplicationHost& application)
      : machine_(machine), application_(application) {}

  void willDeliver(const __CGEvent& event) override;
  void didDeliver(const __CGEvent& before, const __CGEvent& after, bool isKept) override;

  /// The guard may know the displays and the Dock as they are now.
  void noteSituation();
  /// The process has just been told of the displays: it knows no other situation from now on.
  void forgetSituations();
  [[nodiscard]] const std::vector<Situation>& situations() const { return situations_; }

  /// What was seen since the last beginning of a step.
  struct Step {
    /// A movement passed that the guard let pass on purpose, or did not see.
    bool hasFreeMovement = false;
    /// An event met the guard's tap after it was disabled.
    bool hasMetDisabledTap = false;
    bool hasMovedBack = false;
    bool hasUnlockedMovement = false;
    std::optional<Violation> violation;
  };
  void beginStep() { step_ = {}; }
  [[nodiscard]] const Step& step() const { return step_; }
  [[nodiscard]] std::int64_t eventCount() const { return events_; }

 private:
  [[nodiscard]] std::optional<std::string> complaint(const __CGEvent& before,
                                                     const __CGEvent& after, bool isKept) const;

  Machine& machine_;
  const ApplicationHost& application_;
  std::vector<Situation> situations_;
  bool isGuarded_ = false;
  bool isUnlocked_ = false;
  Wish wish_;
  Step step_;
  std::int64_t events_ = 0;
};

}  // namespace orvane::desk::explore
