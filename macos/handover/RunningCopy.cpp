// Which of several running copies of one program stays.
#include "macos/handover/RunningCopy.hpp"

#include <algorithm>
#include <tuple>

namespace orvane {

namespace {

bool comesBefore(const RunningCopy& first, const RunningCopy& second) {
  const auto rank = [](const RunningCopy& copy) {
    return std::tuple(!copy.isRunning, !copy.launchedAt, copy.launchedAt.value_or(0),
                      copy.processID);
  };
  return rank(first) < rank(second);
}

}  // namespace

std::optional<RunningCopy> copyThatStays(std::span<const RunningCopy> copies) {
  const auto first = std::ranges::min_element(copies, comesBefore);
  return first == copies.end() ? std::nullopt : std::optional(*first);
}

}  // namespace orvane
