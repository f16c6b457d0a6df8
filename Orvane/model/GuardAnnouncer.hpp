// GuardAnnouncer tells users of a screen reader what others see by the icon in the menu bar: that
// the guard has started, has stopped, or is kept from starting by the missing permission.
#pragma once

#include <string>

#include "Orvane/model/OrvaneModel.hpp"

namespace orvane {

/// Main thread only.
class GuardAnnouncer {
 public:
  /// Speaks when what there is to tell is another than the last time; at first the guard counts as
  /// stopped, so that an ordinary start of the application says nothing.
  void update(const OrvaneModel& model);

 private:
  enum class State { stopped, pinning, preventing, blocked };
  struct Told {
    State state = State::stopped;
    /// Of the display to which the Dock is pinned; empty in every other state.
    std::string displayID;

    friend bool operator==(const Told&, const Told&) = default;
  };

  [[nodiscard]] Told tell(const OrvaneModel& model) const;
  [[nodiscard]] static std::string text(State state, const OrvaneModel& model);

  Told told_;
};

}  // namespace orvane
