// ActionGenerator chooses what users, hardware and the system do in a day. Each day draws its own
// probabilities, and leaves out some actions.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "desk/application/ApplicationHost.hpp"
#include "desk/explore/Lines.hpp"
#include "desk/explore/Random.hpp"

namespace orvane::desk::explore {

class ActionGenerator {
 public:
  /// Draws the probabilities of a day.
  explicit ActionGenerator(Random& random);

  /// The first lines of a day, up to the launch.
  [[nodiscard]] Lines beginning();
  /// The next action or fault, as at least one line.
  [[nodiscard]] Lines next(Machine& machine, const ApplicationHost& application);

  /// How often each kind of fault was chosen, in the order of faultNames().
  [[nodiscard]] const std::vector<std::int64_t>& faultCounts() const { return faultCounts_; }
  [[nodiscard]] static std::vector<std::string> faultNames();

 private:
  Random& random_;
  std::vector<std::size_t> weights_;
  /// In permille of the steps.
  std::vector<std::size_t> faultPermilles_;
  std::vector<std::int64_t> faultCounts_;
};

/// What an action depends on.
struct ActionContext {
  Random& random;
  Machine& machine;
  bool isRunning;
};

// Each action returns the lines that carry it out, or none if it is impossible now.
[[nodiscard]] Lines attachDisplay(ActionContext& context);
[[nodiscard]] Lines detachDisplay(ActionContext& context);
[[nodiscard]] Lines moveDisplay(ActionContext& context);
[[nodiscard]] Lines renumberDisplays(ActionContext& context);
[[nodiscard]] Lines chooseMainDisplay(ActionContext& context);
[[nodiscard]] Lines changeDisplaysTogether(ActionContext& context);
[[nodiscard]] Lines changeDisplaysUnderEvents(ActionContext& context);

[[nodiscard]] Lines movePointer(ActionContext& context);
[[nodiscard]] Lines pressAgainstEdge(ActionContext& context);
[[nodiscard]] Lines runAway(ActionContext& context);
[[nodiscard]] Lines postEvents(ActionContext& context);
[[nodiscard]] Lines holdKeys(ActionContext& context);
[[nodiscard]] Lines changeCursor(ActionContext& context);

[[nodiscard]] Lines operateMenu(ActionContext& context);
[[nodiscard]] Lines pressControl(ActionContext& context);
[[nodiscard]] Lines pickItem(ActionContext& context);
[[nodiscard]] Lines hoverControl(ActionContext& context);
[[nodiscard]] Lines clickSomewhere(ActionContext& context);
[[nodiscard]] Lines typeKey(ActionContext& context);
[[nodiscard]] Lines typeShortcut(ActionContext& context);
[[nodiscard]] Lines scrollWheel(ActionContext& context);
[[nodiscard]] Lines dragWindow(ActionContext& context);
[[nodiscard]] Lines closeWindow(ActionContext& context);
[[nodiscard]] Lines dropIcon(ActionContext& context);
[[nodiscard]] Lines doOperation(ActionContext& context);
/// A step through the alert, the guide and the System Settings, often towards the permission.
[[nodiscard]] Lines followGuide(ActionContext& context);

}  // namespace orvane::desk::explore
