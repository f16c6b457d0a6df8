// RarePaths names the states that are worth reaching, and counts how often each was reached. They
// are recognised from outside.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "desk/explore/FilterWatch.hpp"
#include "desk/explore/Moment.hpp"

namespace orvane::desk::explore {

class RarePaths {
 public:
  /// One line of a script, and what was before and after it.
  struct Step {
    const std::string& line;
    const Moment& before;
    const Moment& after;
    const FilterWatch::Step& filter;
    /// The displays have changed, or the Dock, and the application may not have been told.
    bool isStale;
    const Machine& machine;
    const ApplicationHost& application;
  };

  RarePaths();

  void note(const Step& step);
  void add(const RarePaths& other);

  [[nodiscard]] static std::vector<std::string> names();
  /// In the order of the names.
  [[nodiscard]] const std::vector<std::int64_t>& counts() const { return counts_; }

 private:
  std::vector<std::int64_t> counts_;
};

}  // namespace orvane::desk::explore
