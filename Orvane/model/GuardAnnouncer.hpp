// GuardAnnouncer tells users of a screen reader what others see by the icon in the menu bar: that
// the guard has started, has stopped, or cannot start without the permission.
#pragma once

#include <string>

#include "Orvane/model/OrvaneModel.hpp"

namespace orvane {

/// Main thread only.
class GuardAnnouncer {
 public:
  /// Speaks when there is something new to say. At first the guard counts as stopped, so an
  /// ordinary start of the application says nothing.
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

  Announcement last_;
};

}  // namespace orvane
