// Mistakes of the application that on a real Mac would cause a crash or silent corruption:
// releasing an object twice, using it after its release, passing null where an object is required.
#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace orvane::desk {

class Faults {
 public:
  /// Only the first faults keep their text; all are counted.
  static constexpr std::size_t textLimit = 100;

  void record(std::string text) {
    ++count_;
    if (texts_.size() < textLimit) {
      texts_.push_back(std::move(text));
    }
  }

  [[nodiscard]] std::size_t count() const { return count_; }
  [[nodiscard]] const std::vector<std::string>& texts() const { return texts_; }
  /// Returns the texts and resets, for a test that provokes faults on purpose.
  std::vector<std::string> take() {
    count_ = 0;
    return std::exchange(texts_, {});
  }

 private:
  std::size_t count_ = 0;
  std::vector<std::string> texts_;
};

}  // namespace orvane::desk
