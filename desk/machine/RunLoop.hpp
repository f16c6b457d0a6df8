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
/// was asked for. Nothing is served inside of something else: a task that comes while another runs
/// waits for its end.
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

  /// Modes nest: a menu in a modal session is left before the session is.
  void enterMode(Mode mode) { modes_.push_back(mode); }
  /// Back to the mode before; the standard mode stays.
  void leaveMode();
  [[nodiscard]] Mode mode() const { return modes_.empty() ? Mode::standard : modes_.back(); }
  [[nodiscard]] bool isIn(ModeSet modes) const {
    return (modes & static_cast<ModeSet>(mode())) != 0;
  }

  /// While tasks are not accepted, they are destroyed at once: there is no process to run them.
  void setAcceptsTasks(bool accepts) { acceptsTasks_ = accepts; }
  [[nodiscard]] bool acceptsTasks() const { return acceptsTasks_; }

  void async(Task task) { asyncAfter(0, std::move(task)); }
  void asyncAfter(std::int64_t delayNanoseconds, Task task);

  /// Runs `task` as soon as what runs now has returned, before all that is due, in every mode and
  /// also while the main queue is held: what follows an inner loop that has ended, or the layout
  /// that an event has made necessary. It wakes nobody and needs no process.
  void afterCurrent(Task task);

  /// Between the two the main queue delivers nothing: a modal session runs and the task that
  /// started it has not returned. They nest.
  void holdMainQueue() { ++mainQueueHolds_; }
  void releaseMainQueue();
  [[nodiscard]] bool isMainQueueHeld() const { return mainQueueHolds_ > 0; }
  /// Whether a task of the main queue is running right now.
  [[nodiscard]] bool isServingMainQueue() const { return servesMainQueue_; }
  [[nodiscard]] std::size_t pendingTaskCount() const { return tasks_.size(); }

  /// The first tick comes after one interval, later ones on that grid. A timer that was kept from
  /// firing, because the mode was another, fires once when it may again and then returns to its
  /// grid. An interval of nothing is taken as 0.1 ms, as the Mac does.
  std::shared_ptr<RunLoopTimer> addTimer(std::int64_t intervalNanoseconds, ModeSet modes,
                                         Task tick);
  /// The same, but the first tick comes with the next one of another such timer of the same
  /// interval, where there is one.
  std::shared_ptr<RunLoopTimer> addTimerOnSharedBeat(std::int64_t intervalNanoseconds,
                                                     ModeSet modes, Task tick);
  /// The tick is not called again, and is destroyed as soon as it does not run.
  void invalidateTimer(const std::shared_ptr<RunLoopTimer>& timer);
  [[nodiscard]] std::size_t timerCount() const;

  /// While refused, no new source can be made for a port.
  void setRefusesSources(bool refuses) { refusesSources_ = refuses; }
  [[nodiscard]] bool refusesSources() const { return refusesSources_; }
  /// Sources, such as an event tap's, by their address; what they are is their owner's business.
  /// True when the source was in none of these modes before.
  bool addSource(const void* source, ModeSet modes);
  /// True when the source is in no mode any more, but was in one.
  bool removeSource(const void* source, ModeSet modes);
  /// Empty when the source is not in the run loop.
  [[nodiscard]] ModeSet modesOf(const void* source) const;
  [[nodiscard]] std::vector<const void*> sources() const;

  /// Serves all that is due at the present instant. From within a task it does nothing.
  void runDue();
  /// Lets time pass and serves what falls due at its due time. From within a task it does nothing.
  void advance(std::int64_t nanoseconds);
  /// When the next task or timer that the present mode and holds let through is due.
  [[nodiscard]] std::optional<std::int64_t> nextDue() const;

  /// The process has ended: its tasks and timers are destroyed without being run, its modes and
  /// holds are forgotten. Sources are left to their owner.
  void sweep();

  /// Since the machine was switched on: timers fired, tasks run, and instants at which at least one
  /// of them woke the process.
  [[nodiscard]] std::int64_t timerFireCount() const { return timerFires_; }
  [[nodiscard]] std::int64_t taskCount() const { return tasksRun_; }
  [[nodiscard]] std::int64_t wakeUpCount() const { return wakeUps_; }

 private:
  /// Due time, then order of arrival.
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
  bool servesMainQueue_ = false;
  std::int64_t timerFires_ = 0;
  std::int64_t tasksRun_ = 0;
  std::int64_t wakeUps_ = 0;
};

}  // namespace orvane::desk
