// Habits are what users, hardware and the system do in a day: each day has some of them, and each
// of those more or less often.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "desk/application/ApplicationHost.hpp"
#include "desk/explore/Lines.hpp"
#include "desk/explore/Lots.hpp"

namespace orvane::desk::explore {

class Habits {
 public:
  /// Draws the day's mix.
  explicit Habits(Lots& lots);

  /// What a day begins with.
  [[nodiscard]] Lines beginning();
  /// What is done next, as at least one line.
  [[nodiscard]] Lines next(Machine& machine, const ApplicationHost& application);

  /// How often each kind of fault was chosen, in the order of the names.
  [[nodiscard]] const std::vector<std::int64_t>& faultCounts() const { return faultCounts_; }
  [[nodiscard]] static std::vector<std::string> faultNames();

 private:
  Lots& lots_;
  std::vector<std::size_t> weights_;
  /// Of a thousand steps.
  std::vector<std::size_t> faultChances_;
  std::vector<std::int64_t> faultCounts_;
};

/// What a habit has to go by.
struct Scene {
  Lots& lots;
  Machine& machine;
  bool isRunning;
};

/// A display that touches one that is there and lies over none; none when there is no room.
[[nodiscard]] Lines attachDisplay(Scene& scene);
[[nodiscard]] Lines detachDisplay(Scene& scene);
[[nodiscard]] Lines moveDisplay(Scene& scene);
[[nodiscard]] Lines renumberDisplays(Scene& scene);
[[nodiscard]] Lines chooseMainDisplay(Scene& scene);
[[nodiscard]] Lines changeDisplaysTogether(Scene& scene);
[[nodiscard]] Lines changeDisplaysUnderEvents(Scene& scene);

[[nodiscard]] Lines movePointer(Scene& scene);
[[nodiscard]] Lines pressAgainstEdge(Scene& scene);
[[nodiscard]] Lines runAway(Scene& scene);
[[nodiscard]] Lines postEvents(Scene& scene);
[[nodiscard]] Lines holdKeys(Scene& scene);
[[nodiscard]] Lines changeCursor(Scene& scene);

[[nodiscard]] Lines operateMenu(Scene& scene);
[[nodiscard]] Lines pressControl(Scene& scene);
[[nodiscard]] Lines hoverControl(Scene& scene);
[[nodiscard]] Lines clickSomewhere(Scene& scene);
[[nodiscard]] Lines typeKey(Scene& scene);
[[nodiscard]] Lines typeShortcut(Scene& scene);
[[nodiscard]] Lines scrollWheel(Scene& scene);
[[nodiscard]] Lines dragWindow(Scene& scene);
[[nodiscard]] Lines closeWindow(Scene& scene);
[[nodiscard]] Lines dropIcon(Scene& scene);
[[nodiscard]] Lines doOperation(Scene& scene);
/// On towards the permission, or not: through the alert, the guide and the System Settings.
[[nodiscard]] Lines followGuide(Scene& scene);

}  // namespace orvane::desk::explore
