// The filter's loop over plain numbers: the minimum work of any filter, as the baseline for the
// real one.
#pragma once

#include <cstdint>
#include <vector>

namespace orvane::bench {

struct BareZone {
  double left;
  double top;
  double right;
  double bottom;
  double dx;
  double dy;
};

struct BareEvent {
  double x;
  double y;
  std::uint64_t flags;
};

/// True when the event was in a zone and has been moved out of it.
[[gnu::noinline]] inline bool bareFilter(const std::vector<BareZone>& zones,
                                         std::uint64_t unlockMask, BareEvent& event) {
  if ((event.flags & unlockMask) == unlockMask) {
    return false;
  }
  for (const BareZone& zone : zones) {
    if (event.x >= zone.left && event.x < zone.right && event.y >= zone.top &&
        event.y < zone.bottom) {
      event.x += zone.dx;
      event.y += zone.dy;
      return true;
    }
  }
  return false;
}

}  // namespace orvane::bench
