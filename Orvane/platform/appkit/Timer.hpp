// A repeating timer on the main run loop; NSTimer on a Mac.
#pragma once

#include <functional>
#include <memory>

namespace orvane::appkit {

/// In which modes of the run loop a timer fires.
enum class RunLoopMode {
  /// Not while a menu is open or a modal session runs.
  standard,
  /// Always.
  common,
};

/// Owns its timer: destroying or invalidating it stops the ticks, even from within a tick. Main
/// thread only.
class Timer {
 public:
  /// Fires every `intervalSeconds`. Timers with equal intervals fire together, so that one wake-up
  /// serves them all: the process's first fires after one interval, a later one within it.
  [[nodiscard]] static Timer repeating(double intervalSeconds, RunLoopMode mode,
                                       std::function<void()> tick);

  Timer(Timer&&) noexcept;
  Timer& operator=(Timer&&) noexcept;
  ~Timer();

  void invalidate();
  [[nodiscard]] bool isValid() const;

  struct Implementation;

 private:
  explicit Timer(std::unique_ptr<Implementation> implementation);
  std::unique_ptr<Implementation> implementation_;
};

}  // namespace orvane::appkit
