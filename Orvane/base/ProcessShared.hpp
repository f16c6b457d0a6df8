// ProcessShared is an object that a process creates when it is first asked for and keeps until it
// ends. On a Mac the process's end is the end of it; the desk, where several simulated processes
// follow each other in one real one, says when one has ended.
#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace orvane {

/// The shared objects of the present process, destroyed in the reverse order of their creation.
/// Main thread only.
class ProcessLifetime {
 public:
  static void add(std::function<void()> destroy) { destructions().push_back(std::move(destroy)); }

  /// Ends the present process: what is asked for afterwards belongs to the next one.
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

/// Declare one as a static and ask it with get(). Main thread only.
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
