// RarePaths counts how often rare states were reached, which shows what the random days cover.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "desk/explore/Step.hpp"

namespace orvane::desk::explore {

class RarePaths {
 public:
  RarePaths();

  void note(const Step& step);
  void add(const RarePaths& other);

  [[nodiscard]] static std::vector<std::string> names();
  /// How often each was entered, in the order of names().
  [[nodiscard]] const std::vector<std::int64_t>& counts() const { return counts_; }

 private:
  std::vector<std::int64_t> counts_;
  /// Whether the last step was in the state.
  std::vector<bool> isIn_;
};

}  // namespace orvane::desk::explore
