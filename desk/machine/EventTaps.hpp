// The event taps of the session, and the passage of events through them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <list>
#include <optional>

#include "Orvane/platform/Quartz.hpp"
#include "desk/machine/Event.hpp"
#include "desk/machine/EventTap.hpp"
#include "desk/machine/EventWitness.hpp"
#include "desk/machine/RunLoop.hpp"

namespace orvane::desk {

class EventTaps {
 public:
  explicit EventTaps(const RunLoop& runLoop) : runLoop_(runLoop) {}
  EventTaps(const EventTaps&) = delete;
  EventTaps& operator=(const EventTaps&) = delete;

  /// While true, no tap can be created, whatever the permission.
  void setRefusesCreation(bool refuses) { refusesCreation_ = refuses; }
  [[nodiscard]] bool refusesCreation() const { return refusesCreation_; }

  /// Creates a tap, enabled and without a source, and returns its identity; none when it is
  /// refused. A tap that is created while an event is delivered does not see that event.
  std::optional<std::uint64_t> create(CGEventTapPlacement placement, CGEventTapOptions options,
                                      CGEventMask eventsOfInterest, CGEventTapCallBack callback,
                                      void* userInfo);
  /// Null when no such tap is alive.
  [[nodiscard]] EventTap* find(std::uint64_t identity);
  /// Ends the tap; may be called from within its callback.
  void remove(std::uint64_t identity);
  /// Ends every tap, as the permission was revoked. Their ports stay with their owners.
  void killAll();

  /// Passes the event through the taps in order. False when one of them dropped it.
  bool deliver(__CGEvent& event) {
    if (taps_.empty() && witness_ == nullptr) {
      return true;
    }
    return deliverToTaps(event);
  }

  /// Null for none. Not owned.
  void setWitness(EventWitness* witness) { witness_ = witness; }

  /// Disables every enabled tap and notifies it with an event of type `reason`. Returns how many
  /// there were.
  int disableAll(CGEventType reason, CGPoint location);
  /// The same without an event, as during sleep; after `forGood` they cannot be enabled again.
  void disableAllSilently(bool forGood);

  [[nodiscard]] std::size_t aliveCount() const;
  /// Whether any living tap is enabled.
  [[nodiscard]] bool isAnyEnabled() const;
  /// The events that any living tap receives.
  [[nodiscard]] CGEventMask eventsOfInterest() const;
  /// The number of calls of callbacks.
  [[nodiscard]] std::int64_t deliveryCount() const { return deliveries_; }

 private:
  bool deliverToTaps(__CGEvent& event);
  bool deliverBeforeWitness(__CGEvent& event);
  bool deliverInOrder(__CGEvent& event);
  [[nodiscard]] bool call(EventTap& tap, __CGEvent& event);
  /// Removes the dead taps, unless an event passes through them.
  void tidy();

  const RunLoop& runLoop_;
  EventWitness* witness_ = nullptr;
  /// In the order of delivery; a list, because taps are created during one.
  std::list<EventTap> taps_;
  std::uint64_t nextIdentity_ = 1;
  std::int64_t deliveries_ = 0;
  int deliveriesUnderWay_ = 0;
  bool refusesCreation_ = false;
  bool hasDeadTaps_ = false;
};

}  // namespace orvane::desk
