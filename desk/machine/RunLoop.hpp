// The main run loop of the simulated process: the main queue, delayed tasks, timers, and the modes
// that decide which of them are served.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "desk/machine/Clock.hpp"
#include "desk/machine/Faults.hpp"
#include "desk/machine/RunLoopTimer.hpp"

namespace orvane::desk {

/// What is due is served in the order of the due times, and at equal times in the order in which it
/// was scheduled. Tasks never nest: one that is posted while another runs waits for its end.
class RunLoop {
 public:
  using Task = std::function<void()>;

  enum class Mode : std::uint8_t { standard = 1, eventTracking = 2, modalPanel = 4 };
  /// The values of Mode, or-ed together.
  using ModeSet = std::uint8_t;
  static constexpr ModeSet commonModes = 1 | 2 | 4;

  RunLoop(Clock& clock, Faults& faults) : clock_(clock), faults_(faults) {}
  RunLoop(const RunLoop&) = delete;
  RunLoop& operator=(const RunLoop&) = delete;

  /// Modes nest: a menu within a modal session is left before the session is.
  void enterMode(Mode mode) { modes_.push_back(mode); }
  /// Returns to the previous mode; does nothing in the standard mode.
  void leaveMode();
  [[nodiscard]] Mode mode() const { return modes_.empty() ? Mode::standard : modes_.back(); }
  [[nodiscard]] bool isIn(ModeSet modes) const {
    return (modes & static_cast<ModeSet>(mode())) != 0;
  }

  /// Tasks that are not accepted are destroyed at once, because there is no process to run them.
  void setAcceptsTasks(bool accepts) { acceptsTasks_ = accepts; }

  void async(Task task) { asyncAfter(0, std::move(task)); }
  void asyncAfter(std::int64_t delayNanoseconds, Task task);

  /// Runs `task` as soon as the current task has returned, before anything that is due, in every
  /// mode and even while the main queue is held. For what follows the end of an inner loop, or the
  /// layout after an event. It does not count as a wake-up and needs no process.
  void afterCurrent(Task task);

  /// Between the two calls, which nest, the main queue delivers nothing: a modal session is
  /// running, and the task that started it has not returned.
  void holdMainQueue() { ++mainQueueHolds_; }
  void releaseMainQueue();
  [[nodiscard]] bool isMainQueueHeld() const { return mainQueueHolds_ > 0; }
  [[nodiscard]] std::size_t pendingTaskCount() const { return tasks_.size(); }

  /// The first tick comes after one interval, later ones on that grid. A timer that the mode kept
  /// from firing fires once when it may again and then returns to its grid. An interval that is not
  /// positive counts as 0.1 ms, as on a Mac.
  std::shared_ptr<RunLoopTimer> addTimer(std::int64_t intervalNanoseconds, ModeSet modes,
                                         Task tick);
  /// The same, but aligned with another coalesced timer of the same interval, if there is one.
  std::shared_ptr<RunLoopTimer> addCoalescedTimer(std::int64_t intervalNanoseconds, ModeSet modes,
                                                  Task tick);
  /// The tick is not called again, and is destroyed as soon as it is not running.
  void invalidateTimer(const std::shared_ptr<RunLoopTimer>& timer);
  [[nodiscard]] std::size_t timerCount() const { return timers_.size(); }
  /// Those of the application; animations and the machine use others.
  [[nodiscard]] std::size_t coalescedTimerCount() const;

  /// While refused, no source can be created for a port.
  void setRefusesSources(bool refuses) { refusesSources_ = refuses; }
  [[nodiscard]] bool refusesSources() const { return refusesSources_; }
  /// Adds a source, such as an event tap's, which is known only by its address. True when the
  /// source was not in the run loop before.
  bool addSource(const void* source, ModeSet modes);
  /// True when the source was in the run loop and is in no mode any more.
  bool removeSource(const void* source, ModeSet modes);
  /// Empty when the source is not in the run loop.
  [[nodiscard]] ModeSet modesOf(const void* source) const;
  [[nodiscard]] std::vector<const void*> sources() const;

  /// Serves everything that is due now. Does nothing from within a task.
  void runDue();
  /// Lets time pass, serving everything at its due time. Does nothing from within a task.
  void advance(std::int64_t nanoseconds);
  /// When the next task or timer is due that the present mode and holds allow; none without one.
  [[nodiscard]] std::optional<std::int64_t> nextDue() const;

  /// To be called when the process has ended: destroys its tasks and timers without running them
  /// and resets modes and holds. Sources are left to their owner.
  void sweep();

  /// Counts since the machine was switched on: timers fired, tasks run, and instants at which
  /// either woke the process.
  [[nodiscard]] std::int64_t timerFireCount() const { return timerFires_; }
  [[nodiscard]] std::int64_t taskCount() const { return tasksRun_; }
  [[nodiscard]] std::int64_t wakeUpCount() const { return wakeUps_; }

 private:
  /// Due time, then order of scheduling.
  using Place = std::pair<std::int64_t, std::uint64_t>;

  [[nodiscard]] std::shared_ptr<RunLoopTimer> nextTimer() const;
  /// False when nothing is due now.
  bool serveNext();
  void serveInstant();
  void runFollower();
  void runTask();
  void fire(const std::shared_ptr<RunLoopTimer>& timer);

  Clock& clock_;
  Faults& faults_;
  std::vector<Mode> modes_;
  std::map<Place, Task> tasks_;
  std::deque<Task> followers_;
  std::vector<std::shared_ptr<RunLoopTimer>> timers_;
  std::vector<std::pair<const void*, ModeSet>> sources_;
  std::shared_ptr<RunLoopTimer> firing_;
  std::uint64_t nextSequence_ = 0;
  int mainQueueHolds_ = 0;
  bool acceptsTasks_ = true;
  bool refusesSources_ = false;
  bool serves_ = false;
  std::int64_t timerFires_ = 0;
  std::int64_t tasksRun_ = 0;
  std::int64_t wakeUps_ = 0;
};

}  // namespace orvane::desk
