// Selects what the run loop serves next, and when.
#include "desk/machine/RunLoop.hpp"

#include <algorithm>
#include <limits>

namespace orvane::desk {

namespace {

constexpr std::int64_t never = std::numeric_limits<std::int64_t>::max();
/// What NSTimer uses in place of an interval that is not positive.
constexpr std::int64_t shortestInterval = 100'000;
/// More tasks than this at one instant are taken for an endless loop.
constexpr int servedAtOneInstantLimit = 1'000'000;

/// Saturating addition of two numbers that are not negative.
std::int64_t later(std::int64_t time, std::int64_t delay) {
  return delay > never - time ? never : time + delay;
}

}  // namespace

void RunLoop::leaveMode() {
  if (!modes_.empty()) {
    modes_.pop_back();
  }
}

void RunLoop::releaseMainQueue() {
  if (mainQueueHolds_ > 0) {
    --mainQueueHolds_;
  }
}

void RunLoop::asyncAfter(std::int64_t delayNanoseconds, Task task) {
  if (acceptsTasks_ && task) {
    const std::int64_t delay = std::max<std::int64_t>(delayNanoseconds, 0);
    tasks_.emplace(Place{later(clock_.now(), delay), nextSequence_++}, std::move(task));
  }
}

void RunLoop::afterCurrent(Task task) {
  if (task) {
    followers_.push_back(std::move(task));
  }
}

std::shared_ptr<RunLoopTimer> RunLoop::addTimer(std::int64_t intervalNanoseconds, ModeSet modes,
                                                Task tick) {
  const std::int64_t interval = intervalNanoseconds > 0 ? intervalNanoseconds : shortestInterval;
  auto timer = std::make_shared<RunLoopTimer>(RunLoopTimer{
      interval, modes, std::move(tick), later(clock_.now(), interval), nextSequence_++});
  if (acceptsTasks_ && timer->tick) {
    timers_.push_back(timer);
  } else {
    timer->isValid = false;
    timer->tick = nullptr;
  }
  return timer;
}

std::shared_ptr<RunLoopTimer> RunLoop::addCoalescedTimer(std::int64_t intervalNanoseconds,
                                                         ModeSet modes, Task tick) {
  const auto peer = std::find_if(timers_.begin(), timers_.end(), [&](const auto& timer) {
    return timer->isCoalesced && timer->intervalNanoseconds == intervalNanoseconds;
  });
  const bool isFirst = peer == timers_.end();
  std::int64_t due = isFirst ? 0 : (*peer)->dueNanoseconds;
  auto timer = addTimer(intervalNanoseconds, modes, std::move(tick));
  timer->isCoalesced = true;
  if (!isFirst) {
    // An overdue peer will return to its grid.
    const std::int64_t late = clock_.now() - due;
    due += late < 0 ? 0 : (late / intervalNanoseconds + 1) * intervalNanoseconds;
    timer->dueNanoseconds = due;
  }
  return timer;
}

void RunLoop::invalidateTimer(const std::shared_ptr<RunLoopTimer>& timer) {
  if (!timer->isValid) {
    return;
  }
  timer->isValid = false;
  std::erase(timers_, timer);
  if (timer != firing_) {
    // Destroying what the tick holds may access the run loop again.
    const Task tick = std::exchange(timer->tick, nullptr);
  }
}

std::size_t RunLoop::coalescedTimerCount() const {
  return static_cast<std::size_t>(std::count_if(
      timers_.begin(), timers_.end(), [](const auto& timer) { return timer->isCoalesced; }));
}

bool RunLoop::addSource(const void* source, ModeSet modes) {
  for (auto& [known, knownModes] : sources_) {
    if (known == source) {
      knownModes = static_cast<ModeSet>(knownModes | modes);
      return false;
    }
  }
  sources_.emplace_back(source, modes);
  return true;
}

bool RunLoop::removeSource(const void* source, ModeSet modes) {
  const auto known = std::find_if(sources_.begin(), sources_.end(),
                                  [source](const auto& entry) { return entry.first == source; });
  if (known == sources_.end()) {
    return false;
  }
  known->second = static_cast<ModeSet>(known->second & ~modes);
  if (known->second != 0) {
    return false;
  }
  sources_.erase(known);
  return true;
}

RunLoop::ModeSet RunLoop::modesOf(const void* source) const {
  for (const auto& [known, modes] : sources_) {
    if (known == source) {
      return modes;
    }
  }
  return 0;
}

std::vector<const void*> RunLoop::sources() const {
  std::vector<const void*> all;
  for (const auto& [source, modes] : sources_) {
    all.push_back(source);
  }
  return all;
}

std::shared_ptr<RunLoopTimer> RunLoop::nextTimer() const {
  std::shared_ptr<RunLoopTimer> next;
  for (const auto& timer : timers_) {
    if (isIn(timer->modes) &&
        (next == nullptr || Place(timer->dueNanoseconds, timer->sequence) <
                                Place(next->dueNanoseconds, next->sequence))) {
      next = timer;
    }
  }
  return next;
}

std::optional<std::int64_t> RunLoop::nextDue() const {
  if (!followers_.empty()) {
    return clock_.now();
  }
  std::int64_t due = never;
  if (!tasks_.empty() && !isMainQueueHeld()) {
    due = tasks_.begin()->first.first;
  }
  if (const auto timer = nextTimer()) {
    due = std::min(due, timer->dueNanoseconds);
  }
  return due == never ? std::nullopt : std::optional(due);
}

bool RunLoop::serveNext() {
  if (!followers_.empty()) {
    runFollower();
    return true;
  }
  const bool hasTask = !tasks_.empty() && !isMainQueueHeld();
  const auto timer = nextTimer();
  const bool timerIsFirst =
      timer != nullptr &&
      (!hasTask || Place(timer->dueNanoseconds, timer->sequence) < tasks_.begin()->first);
  if (timerIsFirst) {
    if (timer->dueNanoseconds > clock_.now()) {
      return false;
    }
    fire(timer);
    return true;
  }
  if (!hasTask || tasks_.begin()->first.first > clock_.now()) {
    return false;
  }
  runTask();
  return true;
}

void RunLoop::runFollower() {
  const Task follower = std::move(followers_.front());
  followers_.pop_front();
  follower();
}

void RunLoop::runTask() {
  const Task task = std::move(tasks_.begin()->second);
  tasks_.erase(tasks_.begin());
  ++tasksRun_;
  task();
}

void RunLoop::fire(const std::shared_ptr<RunLoopTimer>& timer) {
  // An overdue timer skips the ticks it missed and returns to its grid.
  const std::int64_t missed = (clock_.now() - timer->dueNanoseconds) / timer->intervalNanoseconds;
  timer->dueNanoseconds = later(timer->dueNanoseconds + missed * timer->intervalNanoseconds,
                                timer->intervalNanoseconds);
  timer->sequence = nextSequence_++;
  ++timerFires_;
  firing_ = timer;
  timer->tick();
  firing_ = nullptr;
  if (!timer->isValid) {
    const Task tick = std::exchange(timer->tick, nullptr);
  }
}

void RunLoop::serveInstant() {
  for (int served = 0; served < servedAtOneInstantLimit; ++served) {
    if (!serveNext()) {
      return;
    }
  }
  faults_.record("run loop: the process does not come to rest");
}

void RunLoop::runDue() {
  if (serves_) {
    return;
  }
  serves_ = true;
  serveInstant();
  serves_ = false;
}

void RunLoop::advance(std::int64_t nanoseconds) {
  if (serves_ || nanoseconds < 0) {
    return;
  }
  serves_ = true;
  const std::int64_t end = later(clock_.now(), nanoseconds);
  serveInstant();
  while (const auto due = nextDue()) {
    if (*due > end || *due <= clock_.now()) {
      break;
    }
    clock_.moveTo(*due);
    ++wakeUps_;
    serveInstant();
  }
  clock_.moveTo(end);
  serves_ = false;
}

void RunLoop::sweep() {
  modes_.clear();
  mainQueueHolds_ = 0;
  // Destroying what the tasks and ticks hold may access the run loop again.
  const auto tasks = std::exchange(tasks_, {});
  const auto followers = std::exchange(followers_, {});
  const auto timers = std::exchange(timers_, {});
  for (const auto& timer : timers) {
    timer->isValid = false;
    if (timer != firing_) {
      const Task tick = std::exchange(timer->tick, nullptr);
    }
  }
}

}  // namespace orvane::desk
