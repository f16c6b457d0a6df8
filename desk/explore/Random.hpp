// Random is a pseudorandom generator that gives the same numbers for the same seed everywhere.
#pragma once

#include <cstddef>
#include <cstdint>

namespace orvane::desk::explore {

class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed) {}

  /// splitmix64: Steele, Lea and Flood, "Fast splittable pseudorandom number generators",
  /// OOPSLA 2014.
  std::uint64_t next() {
    state_ += 0x9E3779B97F4A7C15ULL;
    std::uint64_t mixed = state_;
    mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9ULL;
    mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBULL;
    return mixed ^ (mixed >> 31U);
  }

  /// From 0 to `count` - 1; `count` must not be 0.
  std::size_t below(std::size_t count) { return static_cast<std::size_t>(next() % count); }
  /// From `minimum` to `maximum`, inclusive.
  std::int64_t between(std::int64_t minimum, std::int64_t maximum) {
    return minimum +
           static_cast<std::int64_t>(below(static_cast<std::size_t>(maximum - minimum + 1)));
  }
  /// True with this probability.
  bool chance(std::size_t permille) { return below(1000) < permille; }
  /// An element of the list, which must not be empty.
  template <typename List>
  const auto& oneOf(const List& list) {
    return list[below(list.size())];
  }

 private:
  std::uint64_t state_;
};

}  // namespace orvane::desk::explore
