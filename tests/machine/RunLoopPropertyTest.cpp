// The order of the run loop for random requests, compared with a plain list that is searched at
// every time step.
#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "desk/machine/RunLoop.hpp"

namespace orvane::desk {
namespace {

struct Step {
  enum class Kind {
    task,
    standardTimer,
    commonTimer,
    advance,
    enterMode,
    leaveMode,
    hold,
    release
  };
  Kind kind;
  /// The delay, the interval or the elapsed time.
  int amount;
  /// When not negative, the task posts another one with this delay.
  int childDelay;
};

std::ostream& operator<<(std::ostream& out, const Step& step) {
  constexpr const char* names[] = {"task",  "standardTimer", "commonTimer", "advance",
                                   "enter", "leave",         "hold",        "release"};
  return out << names[static_cast<int>(step.kind)] << " " << step.amount << " " << step.childDelay;
}

using Record = std::pair<std::int64_t, int>;

/// The simplest possible model of the run loop: time advances unit by unit, and each time the whole
/// list is searched for the item that has waited longest.
class ListModel {
 public:
  std::vector<Record> records;

  void add(int name, bool isTask, bool isStandard, std::int64_t due, int interval, int child) {
    items_.push_back({name, isTask, isStandard, due, arrivals_++, interval, child});
  }

  void perform(const Step& step, int name) {
    switch (step.kind) {
      case Step::Kind::task:
        add(name, true, false, now_ + step.amount, 0, step.childDelay);
        break;
      case Step::Kind::standardTimer:
        add(name, false, true, now_ + step.amount + 1, step.amount + 1, -1);
        break;
      case Step::Kind::commonTimer:
        add(name, false, false, now_ + step.amount + 1, step.amount + 1, -1);
        break;
      case Step::Kind::advance:
        rest();
        for (int unit = 0; unit < step.amount; ++unit) {
          ++now_;
          rest();
        }
        break;
      case Step::Kind::enterMode:
        ++modes_;
        break;
      case Step::Kind::leaveMode:
        modes_ = modes_ > 0 ? modes_ - 1 : 0;
        break;
      case Step::Kind::hold:
        ++holds_;
        break;
      case Step::Kind::release:
        holds_ = holds_ > 0 ? holds_ - 1 : 0;
        break;
    }
    rest();
  }

 private:
  struct Item {
    int name;
    bool isTask;
    bool isStandard;
    std::int64_t due;
    int arrival;
    int interval;
    int child;
  };

  [[nodiscard]] bool isServed(const Item& item) const {
    return item.due <= now_ && !(item.isTask && holds_ > 0) && !(item.isStandard && modes_ > 0);
  }

  void rest() {
    while (true) {
      std::size_t first = items_.size();
      for (std::size_t index = 0; index < items_.size(); ++index) {
        if (isServed(items_[index]) &&
            (first == items_.size() || items_[index].due < items_[first].due ||
             (items_[index].due == items_[first].due &&
              items_[index].arrival < items_[first].arrival))) {
          first = index;
        }
      }
      if (first == items_.size()) {
        return;
      }
      const Item served = items_[first];
      records.emplace_back(now_, served.name);
      if (served.isTask) {
        items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(first));
        if (served.child >= 0) {
          add(served.name + 1000, true, false, now_ + served.child, 0, -1);
        }
      } else {
        while (items_[first].due <= now_) {
          items_[first].due += served.interval;
        }
        items_[first].arrival = arrivals_++;
      }
    }
  }

  std::vector<Item> items_;
  std::int64_t now_ = 0;
  int arrivals_ = 0;
  int modes_ = 0;
  int holds_ = 0;
};

class RunLoopModel {
 public:
  std::vector<Record> records;

  void perform(const Step& step, int name) {
    switch (step.kind) {
      case Step::Kind::task:
        runLoop_.asyncAfter(step.amount, [this, name, child = step.childDelay] {
          records.emplace_back(clock_.now(), name);
          if (child >= 0) {
            runLoop_.asyncAfter(child,
                                [this, name] { records.emplace_back(clock_.now(), name + 1000); });
          }
        });
        break;
      case Step::Kind::standardTimer:
      case Step::Kind::commonTimer:
        runLoop_.addTimer(step.amount + 1,
                          step.kind == Step::Kind::commonTimer
                              ? RunLoop::commonModes
                              : static_cast<RunLoop::ModeSet>(RunLoop::Mode::standard),
                          [this, name] { records.emplace_back(clock_.now(), name); });
        break;
      case Step::Kind::advance:
        runLoop_.advance(step.amount);
        break;
      case Step::Kind::enterMode:
        runLoop_.enterMode(RunLoop::Mode::eventTracking);
        break;
      case Step::Kind::leaveMode:
        runLoop_.leaveMode();
        break;
      case Step::Kind::hold:
        runLoop_.holdMainQueue();
        break;
      case Step::Kind::release:
        runLoop_.releaseMainQueue();
        break;
    }
    runLoop_.runDue();
  }

 private:
  Clock clock_;
  Faults faults_;
  RunLoop runLoop_{clock_, faults_};
};

rc::Gen<Step> genStep() {
  using Kind = Step::Kind;
  return rc::gen::construct<Step>(
      rc::gen::element(Kind::task, Kind::task, Kind::standardTimer, Kind::commonTimer,
                       Kind::advance, Kind::advance, Kind::advance, Kind::enterMode,
                       Kind::leaveMode, Kind::hold, Kind::release),
      rc::gen::inRange(0, 7), rc::gen::inRange(-2, 4));
}

RC_GTEST_PROP(RunLoopProperty, ServesTasksAndTimersInTheOrderOfTheListModel, ()) {
  const auto steps = *rc::gen::container<std::vector<Step>>(genStep());
  ListModel expected;
  RunLoopModel actual;
  for (std::size_t index = 0; index < steps.size(); ++index) {
    expected.perform(steps[index], static_cast<int>(index));
    actual.perform(steps[index], static_cast<int>(index));
  }
  RC_ASSERT(actual.records == expected.records);
}

}  // namespace
}  // namespace orvane::desk
