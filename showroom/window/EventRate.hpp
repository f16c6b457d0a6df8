// How many events came in the last second of the machine's time.
#pragma once

#include <cstdint>
#include <deque>

namespace orvane::showroom {

class EventRate {
 public:
  /// `count` events came at that moment, in nanoseconds of the machine's clock; moments do not go
  /// back.
  void note(std::int64_t moment, std::int64_t count);
  /// The events of the second before `now`.
  [[nodiscard]] std::int64_t perSecond(std::int64_t now) const;
  /// When the rate changes next if nothing more comes; negative when it stays.
  [[nodiscard]] std::int64_t nextChangeAt() const;

 private:
  struct Batch {
    std::int64_t moment;
    std::int64_t count;
  };
  std::deque<Batch> batches_;
};

}  // namespace orvane::showroom
