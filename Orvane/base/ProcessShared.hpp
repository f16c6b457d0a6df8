// ProcessShared creates an object on first use and keeps it until the process ends. The desk runs
// several simulated processes, one after another, in one real process; it marks the end of each
// with `ProcessLifetime::end`.
#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace orvane {

/// The shared objects of the current process, destroyed in reverse order of creation. Main thread
/// only.
class ProcessLifetime {
 public:
  static void add(std::function<void()> destroy) { destructions().push_back(std::move(destroy)); }

  /// Ends the current process. Objects that are requested later belong to the next one.
  static void end() {
    while (!destructions().empty()) {
      const std::function<void()> destroy = std::move(destructions().back());
      destructions().pop_back();
      destroy();
    }
  }

 private:
  static std::vector<std::function<void()>>& destructions() {
    static std::vector<std::function<void()>> all;
    return all;
  }
};

/// Declare one as a static and call get(). Main thread only.
template <typename T>
class ProcessShared {
 public:
  T& get() {
    if (object_ == nullptr) {
      object_ = std::make_unique<T>();
      ProcessLifetime::add([this] { object_.reset(); });
    }
    return *object_;
  }

  /// Whether get() has been called in this process.
  [[nodiscard]] bool exists() const { return object_ != nullptr; }

 private:
  std::unique_ptr<T> object_;
};

}  // namespace orvane
