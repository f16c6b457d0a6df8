// GuardAnnouncer announces to screen readers the state that the menu-bar icon shows: the guard has
// started, has stopped, or cannot start without the permission.
#pragma once

#include <string>

#include "Orvane/model/OrvaneModel.hpp"

namespace orvane {

/// Main thread only.
class GuardAnnouncer {
 public:
  /// Announces the state if it has changed. Initially the guard counts as stopped, so an ordinary
  /// launch is not announced.
  void update(const OrvaneModel& model);

 private:
  struct Announcement {
    OrvaneMode mode = OrvaneMode::off;
    /// The guard is wanted, but the permission is missing.
    bool isBlocked = false;
    /// Of the display to which the Dock is pinned; empty otherwise.
    std::string displayID = {};

    friend bool operator==(const Announcement&, const Announcement&) = default;
  };

  [[nodiscard]] Announcement announcementFor(const OrvaneModel& model) const;
  [[nodiscard]] std::string text(const OrvaneModel& model) const;

  Announcement lastAnnounced_;
};

}  // namespace orvane
