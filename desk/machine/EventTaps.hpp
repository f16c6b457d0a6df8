// The event taps of the session, and the way of an event through them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

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

  /// While refused, no tap can be made, whatever the permission.
  void setRefusesCreation(bool refuses) { refusesCreation_ = refuses; }
  [[nodiscard]] bool refusesCreation() const { return refusesCreation_; }

  /// The identity of a new tap, enabled and without a source; none when it is refused. One that is
  /// made while an event is delivered does not see that event.
  std::optional<std::uint64_t> create(CGEventTapPlacement placement, CGEventTapOptions options,
                                      CGEventMask eventsOfInterest, CGEventTapCallBack callback,
                                      void* userInfo);
  /// Null when there is no such tap alive.
  [[nodiscard]] EventTap* find(std::uint64_t identity);
  /// The tap is alive no more; also from within its callback.
  void remove(std::uint64_t identity);
  /// The permission has gone: every tap dies. Their ports stay with whoever owns them.
  void killAll();

  /// Runs the event through the taps in order. False when one of them swallowed it.
  bool deliver(__CGEvent& event) {
    if (order_.empty() && witness_ == nullptr) {
      return true;
    }
    return deliverToTaps(event);
  }

  /// Null for none. Not owned.
  void setWitness(EventWitness* witness) { witness_ = witness; }

  /// The system disables every enabled tap and then tells it so by an event of that type. Returns
  /// how many there were.
  int disableAll(CGEventType reason, CGPoint location);
  /// The same without an event, as over sleep; `forGood` leaves them where nobody can enable them.
  void disableAllSilently(bool forGood);

  [[nodiscard]] std::size_t aliveCount() const;
  /// Whether some living tap is enabled.
  [[nodiscard]] bool isAnyEnabled() const;
  /// How often a callback was called.
  [[nodiscard]] std::int64_t deliveryCount() const { return deliveries_; }

 private:
  bool deliverToTaps(__CGEvent& event);
  bool deliverBeforeWitness(__CGEvent& event);
  bool deliverInOrder(__CGEvent& event);
  [[nodiscard]] bool call(EventTap& tap, __CGEvent& event);
  void tidy();

  const RunLoop& runLoop_;
  EventWitness* witness_ = nullptr;
  /// In the order of delivery.
  std::vector<std::unique_ptr<EventTap>> order_;
  /// Made during a delivery: taken over when it is done, at the head or the tail.
  std::vector<std::pair<CGEventTapPlacement, std::unique_ptr<EventTap>>> arrivals_;
  std::uint64_t nextIdentity_ = 1;
  std::int64_t deliveries_ = 0;
  int deliveriesUnderWay_ = 0;
  bool refusesCreation_ = false;
  bool needsTidying_ = false;
};

}  // namespace orvane::desk
