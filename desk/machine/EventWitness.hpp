// EventWitness sees every event before and after the event taps of the session.
#pragma once

#include "desk/machine/Event.hpp"

namespace orvane::desk {

/// It must neither make nor remove taps.
class EventWitness {
 public:
  virtual ~EventWitness() = default;
  virtual void willDeliver(const __CGEvent& event) = 0;
  /// The same event; `isKept` is false when a tap swallowed it.
  virtual void didDeliver(const __CGEvent& before, const __CGEvent& after, bool isKept) = 0;
};

}  // namespace orvane::desk
