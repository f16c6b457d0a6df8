// InvariantChecker checks what must hold after each script line. It shares no code with the
// application: it parses the stored values itself and has its own oracle for zones and languages.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "desk/explore/DisablingWatch.hpp"
#include "desk/explore/EffectChecker.hpp"
#include "desk/explore/FilterWatch.hpp"
#include "desk/explore/Language.hpp"
#include "desk/explore/Observation.hpp"
#include "desk/explore/Operations.hpp"
#include "desk/explore/Step.hpp"
#include "desk/explore/Violation.hpp"
#include "desk/explore/WindowWatch.hpp"

namespace orvane::desk::explore {

class InvariantChecker {
 public:
  explicit InvariantChecker(Machine& machine);
  InvariantChecker(const InvariantChecker&) = delete;
  InvariantChecker& operator=(const InvariantChecker&) = delete;
  ~InvariantChecker();

  /// To be called before a line runs.
  void beginStep(const std::string& line);
  /// To be called after the line, with the observations before and after it. The step refers to
  /// them.
  [[nodiscard]] Step endStep(const std::string& line, bool hasRun, const Observation& before,
                             const Observation& after);
  [[nodiscard]] std::optional<Violation> check(const Step& step);

  [[nodiscard]] std::int64_t eventCount() const { return filter_.eventCount(); }

 private:
  using Check = std::optional<Violation>;

  /// Whether displays or Dock have changed and the application may not have been notified.
  [[nodiscard]] bool isStale() const { return filter_.configurations().size() > 1; }
  void observeScreens();

  void noteLanguages(const Observation& before, const Observation& after);

  [[nodiscard]] Check checkMachine(const Observation& after) const;
  [[nodiscard]] Check checkObjects(const Observation& after) const;
  [[nodiscard]] Check checkDock(const Observation& before, const Observation& after) const;
  [[nodiscard]] Check checkGuard(const Observation& before, const Observation& after);
  [[nodiscard]] Check checkGuardSettings(const GuardSnapshot& guard, const Stored& stored) const;
  [[nodiscard]] Check checkPermission(const Observation& after);
  [[nodiscard]] Check checkMessages(const Step& step);
  [[nodiscard]] Check checkModel(const Observation& after) const;
  [[nodiscard]] Check checkStatus(const Observation& after) const;
  [[nodiscard]] Check checkKeys() const;
  [[nodiscard]] Check checkTimers(const Observation& after) const;

  [[nodiscard]] Check checkIcon(const Observation& after);
  [[nodiscard]] Check checkAnnouncement(const Observation& before, const Observation& after);
  [[nodiscard]] Check checkMenu(const Observation& after);
  [[nodiscard]] Check checkMainPanel(const Observation& after);
  [[nodiscard]] Check checkPlaces(const Observation& after) const;
  [[nodiscard]] Check checkSettings(const Observation& after);
  [[nodiscard]] Check checkWindows(const Observation& after) const;
  [[nodiscard]] Check checkModes(const Observation& before, const Observation& after);
  [[nodiscard]] Check checkTexts(const Observation& after) const;

  /// Whether the text is in the language; any text is, while there are several.
  [[nodiscard]] bool isInLanguage(const std::set<Language>& languages,
                                  const std::string& text) const;
  /// Whether the condition `name` has been wrong for longer than `limit` nanoseconds.
  [[nodiscard]] bool isOverdue(const std::string& name, bool isWrong, std::int64_t now,
                               std::int64_t limit = Clock::nanosecondsPerSecond);

  Machine& machine_;
  FilterWatch filter_;
  DisablingWatch disabling_;
  EffectChecker effects_;
  WindowWatch windows_;
  Operations operations_;
  /// The press that the running line amounts to, or the line.
  std::string operation_;
  std::map<std::string, std::int64_t> wrongSince_;
  /// No later than the guide began to poll, in nanoseconds; none while it does not.
  std::optional<std::int64_t> guidePollsSince_;
  /// The time until which late notifications may arrive, in nanoseconds.
  std::int64_t notificationsUntil_ = -1;
  /// The end of the last time the main queue was held, in nanoseconds.
  std::int64_t messagesHeldUntil_ = 0;
  /// Since when the state of the guard and its surroundings have been the same, in nanoseconds.
  std::int64_t quietSince_ = 0;
  /// When the permission was last seen missing, in nanoseconds.
  std::optional<std::int64_t> untrustedAt_;
  /// Texts in any language: names of displays, messages of the system.
  std::set<std::string> names_;
  /// The languages that the application may show at present.
  std::set<Language> languages_;
  /// The same for each surface that is open. One that opens is in the present language.
  std::map<std::string, std::set<Language>> surfaceLanguages_;
  /// The application has been notified of its displays since its launch.
  bool hasListed_ = false;
  /// The application was notified of its displays in this step.
  bool wasNotified_ = false;
  /// A guard whose lock was announced has lost the permission, which is yet to be announced.
  bool isLossUnannounced_ = false;
  /// The target at the last announcement.
  std::optional<std::string> announcedTarget_;
  std::map<std::uint32_t, std::int64_t> revealsBefore_;
  std::int64_t abandonedPortsBefore_ = 0;
  bool wasStale_ = false;
  /// Stored keys that the script itself has set.
  std::set<std::string> scriptKeys_;
};

}  // namespace orvane::desk::explore
