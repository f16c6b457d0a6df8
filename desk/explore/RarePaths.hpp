// RarePaths counts how often rare states were reached, which shows what the random days cover.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "desk/explore/FilterWatch.hpp"
#include "desk/explore/Observation.hpp"

namespace orvane::desk::explore {

class RarePaths {
 public:
  /// One script line with the observations before and after it.
  struct Step {
    const std::string& line;
    const Observation& before;
    const Observation& after;
    const FilterWatch::Step& filter;
    /// See InvariantChecker::isStale().
    bool isStale;
    const Machine& machine;
    const ApplicationHost& application;
  };

  RarePaths();

  void note(const Step& step);
  void add(const RarePaths& other);

  [[nodiscard]] static std::vector<std::string> names();
  /// In the order of names().
  [[nodiscard]] const std::vector<std::int64_t>& counts() const { return counts_; }

 private:
  std::vector<std::int64_t> counts_;
};

}  // namespace orvane::desk::explore
