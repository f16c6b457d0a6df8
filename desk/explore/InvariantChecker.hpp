// InvariantChecker checks what must hold after each script line. It shares no code with the
// application: it parses the stored values itself and has its own oracle for zones and languages.
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
#include "desk/explore/Language.hpp"
#include "desk/explore/Observation.hpp"
#include "desk/explore/Violation.hpp"

namespace orvane::desk::explore {

class InvariantChecker {
 public:
  InvariantChecker(Machine& machine, const ApplicationHost& application);
  InvariantChecker(const InvariantChecker&) = delete;
  InvariantChecker& operator=(const InvariantChecker&) = delete;
  ~InvariantChecker();

  /// To be called before a line runs.
  void begin();
  /// To be called after the line, with the observations before and after it.
  [[nodiscard]] std::optional<Violation> check(const std::string& line, const Observation& before,
                                               const Observation& after);

  [[nodiscard]] const FilterWatch& filter() const { return filter_; }
  /// Whether displays or Dock have changed and the application may not have been notified.
  [[nodiscard]] bool isStale() const { return filter_.configurations().size() > 1; }

 private:
  using Check = std::optional<Violation>;

  void track(const std::string& line, const Observation& before, const Observation& after);
  void observeScreens();

  [[nodiscard]] Check checkMachine(const Observation& after) const;
  [[nodiscard]] Check checkObjects(const Observation& after) const;
  [[nodiscard]] Check checkDock(const Observation& before, const Observation& after) const;
  [[nodiscard]] Check checkGuard(const Observation& before, const Observation& after);
  [[nodiscard]] Check checkPermission(const Observation& after);
  [[nodiscard]] Check checkModel(const Observation& after) const;
  [[nodiscard]] Check checkStatus(const Observation& after) const;
  [[nodiscard]] Check checkStoredChoices(const std::string& line, const Observation& before,
                                         const Observation& after) const;
  [[nodiscard]] Check checkKeys() const;

  [[nodiscard]] Check checkIcon(const Observation& after);
  [[nodiscard]] Check checkMenu(const Observation& after);
  [[nodiscard]] Check checkMainPanel(const Observation& after) const;
  [[nodiscard]] Check checkSettings(const Observation& after) const;
  [[nodiscard]] Check checkWindows(const Observation& after) const;
  [[nodiscard]] Check checkModes(const Observation& after) const;
  [[nodiscard]] Check checkTexts(const Observation& after) const;

  /// Whether the condition `name` has been wrong for longer than `limit` nanoseconds.
  [[nodiscard]] bool isOverdue(const std::string& name, bool isWrong, std::int64_t now,
                               std::int64_t limit = Clock::nanosecondsPerSecond);

  Machine& machine_;
  const ApplicationHost& application_;
  FilterWatch filter_;
  std::map<std::string, std::int64_t> wrongSince_;
  /// When the guard last ran without the permission, in nanoseconds.
  std::optional<std::int64_t> untrustedAt_;
  /// Texts in any language: names of displays, messages of the system.
  std::set<std::string> names_;
  /// The languages that the application may show at present.
  std::set<Language> languages_;
  /// The same for the alert and the guide, which need not follow a change while they are open.
  std::set<Language> dialogueLanguages_;
  /// The permission was requested since the launch, so a request may take effect later.
  bool hasAsked_ = false;
  /// The application has been notified of its displays since its launch.
  bool hasListed_ = false;
  std::map<std::uint32_t, std::int64_t> revealsBefore_;
  bool wasStale_ = false;
  /// Stored keys that the script itself has set.
  std::set<std::string> scriptKeys_;
};

}  // namespace orvane::desk::explore
