// Lifetime guards callbacks that may outlive their owner: once the owner is destroyed, they do
// nothing.
#pragma once

#include <memory>
#include <utility>

namespace orvane {

/// Declare it as the owner's last member, so that it is destroyed first. Main thread only.
class Lifetime {
 public:
  Lifetime() : token_(std::make_shared<char>()) {}
  Lifetime(const Lifetime&) = delete;
  Lifetime& operator=(const Lifetime&) = delete;

  /// A callback that calls `action` with its arguments while the owner lives, and does nothing
  /// afterwards. `action` must return void.
  template <typename Action>
  [[nodiscard]] auto whileAlive(Action action) const {
    return [weakToken = std::weak_ptr<char>(token_),
            action = std::move(action)]<typename... Arguments>(Arguments&&... arguments) mutable {
      if (!weakToken.expired()) {
        action(std::forward<Arguments>(arguments)...);
      }
    };
  }

 private:
  std::shared_ptr<char> token_;
};

}  // namespace orvane
