// FilterWatch checks for every event that the guard's filter changes it only as it should.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "desk/explore/DisplayConfiguration.hpp"
#include "desk/explore/RunawayWatch.hpp"
#include "desk/explore/Stored.hpp"
#include "desk/explore/Violation.hpp"
#include "desk/machine/EventWitness.hpp"
#include "desk/machine/Machine.hpp"

namespace orvane::desk::explore {

class FilterWatch : public EventWitness {
 public:
  explicit FilterWatch(Machine& machine) : machine_(machine) {}

  void willDeliver(const __CGEvent& event) override;
  void didDeliver(const __CGEvent& before, const __CGEvent& after, bool isKept) override;

  /// To be called after each step. The guard may act on the present displays and Dock, or still on
  /// earlier ones until the system notifies it or it looks at the Dock's edge.
  void addConfiguration();
  /// The application has just been notified: only the present configuration counts.
  void resetConfigurations();
  [[nodiscard]] const std::vector<DisplayConfiguration>& configurations() const {
    return configurations_;
  }

  /// What happened since beginStep().
  struct Step {
    /// A movement passed because the guard is unlocked or had no enabled tap.
    bool hasFreeMovement = false;
    /// An event arrived while the guard's tap was disabled.
    bool hasMetDisabledTap = false;
    bool hasMovedBack = false;
    /// The guard disabled its tap in the filter.
    bool hasShutOff = false;
    std::optional<Violation> violation;
  };
  void beginStep();
  [[nodiscard]] const Step& step() const { return step_; }
  [[nodiscard]] std::int64_t eventCount() const { return events_; }

 private:
  void noteSettings();
  [[nodiscard]] std::optional<std::string> problem(const __CGEvent& before, const __CGEvent& after,
                                                   bool isKept) const;
  /// Whether the filter may return the event so, with these stored settings.
  [[nodiscard]] bool isExpected(const __CGEvent& before, const __CGEvent& after,
                                const Stored& stored) const;

  Machine& machine_;
  /// The present one, unless the guard may act on others.
  std::vector<DisplayConfiguration> configurations_;
  DisplayConfiguration present_;
  /// Until when the guard may act on earlier configurations, in nanoseconds.
  std::int64_t staleUntil_ = 0;
  bool isTapEnabled_ = false;
  bool isGuarded_ = false;
  /// The settings before the steps of a modal session, in which a guard that has waited for a
  /// display starts with those of its stop; then those of now. Each once.
  std::vector<Stored> settings_;
  RunawayWatch runaway_;
  /// How often the user's switch had been stored at the last event.
  std::int64_t switchWrites_ = 0;
  Step step_;
  std::int64_t events_ = 0;
};

}  // namespace orvane::desk::explore
