// Safety is what must hold whenever the machine is at rest. It shares no code with the application:
// it reads what is stored by rules of its own and looks at zones place by place.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "desk/application/ApplicationHost.hpp"
#include "desk/explore/FilterWatch.hpp"
#include "desk/explore/Moment.hpp"
#include "desk/explore/Texts.hpp"
#include "desk/explore/Violation.hpp"

namespace orvane::desk::explore {

class Safety {
 public:
  Safety(Machine& machine, const ApplicationHost& application);
  Safety(const Safety&) = delete;
  Safety& operator=(const Safety&) = delete;
  ~Safety();

  /// Before a line of the script is carried out.
  void begin();
  /// After it, with the moments before and after.
  [[nodiscard]] std::optional<Violation> check(const std::string& line, const Moment& before,
                                               const Moment& after);

  [[nodiscard]] const FilterWatch& filter() const { return filter_; }
  /// The displays may have changed without the application's having been told.
  [[nodiscard]] bool isStale() const { return filter_.situations().size() > 1; }

 private:
  using Check = std::optional<Violation>;

  void follow(const std::string& line, const Moment& before, const Moment& after);
  void listenToScreens();

  [[nodiscard]] Check checkMachine(const Moment& after) const;
  [[nodiscard]] Check checkObjects(const Moment& after) const;
  [[nodiscard]] Check checkDock(const Moment& before, const Moment& after) const;
  [[nodiscard]] Check checkGuard(const Moment& before, const Moment& after);
  [[nodiscard]] Check checkPermission(const Moment& after);
  [[nodiscard]] Check checkModel(const Moment& after) const;
  [[nodiscard]] Check checkStatus(const Moment& after) const;
  [[nodiscard]] Check checkWish(const std::string& line, const Moment& before,
                                const Moment& after) const;
  [[nodiscard]] Check checkKeys() const;

  [[nodiscard]] Check checkIcon(const Moment& after);
  [[nodiscard]] Check checkMenu(const Moment& after);
  [[nodiscard]] Check checkMainPanel(const Moment& after) const;
  [[nodiscard]] Check checkSettings(const Moment& after) const;
  [[nodiscard]] Check checkWindows(const Moment& after) const;
  [[nodiscard]] Check checkModes(const Moment& after) const;
  [[nodiscard]] Check checkTexts(const Moment& after) const;

  /// Whether something is wrong for longer than that; each name is a matter of its own.
  [[nodiscard]] bool isOverdue(const std::string& matter, bool isWrong, std::int64_t now,
                               std::int64_t limit = Clock::nanosecondsPerSecond);

  Machine& machine_;
  const ApplicationHost& application_;
  FilterWatch filter_;
  std::map<std::string, std::int64_t> wrongSince_;
  /// When the guard last ran without the permission, in nanoseconds.
  std::optional<std::int64_t> untrustedAt_;
  /// Texts that are in no language of ours: names of displays, messages of the system.
  std::set<std::string> names_;
  /// The languages in which the application may speak at the moment.
  std::set<Tongue> tongues_;
  /// The same of the alert and the guide: they need not follow a change while they are open.
  std::set<Tongue> tonguesOfPanels_;
  /// The user was asked for the permission since the launch, so that a wish may come true late.
  bool hasAsked_ = false;
  /// The application has read the list of displays since its launch.
  bool hasListed_ = false;
  std::map<std::uint32_t, std::int64_t> revealsBefore_;
  bool wasStale_ = false;
  std::set<std::string> foreignKeys_;
};

}  // namespace orvane::desk::explore
