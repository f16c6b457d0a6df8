// Runs the days, sums up their counts, and reports a violation with the command that repeats it.
#include "desk/explore/RunExplore.hpp"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstddef>
#include <cstdio>
#include <fstream>
#include <iomanip>
#include <optional>

#include <unistd.h>

#include "desk/canvas/PinnedFonts.hpp"
#include "desk/explore/ActionGenerator.hpp"
#include "desk/explore/Day.hpp"
#include "desk/explore/Shrink.hpp"

namespace orvane::desk::explore {

namespace {

constexpr int successStatus = 0;
constexpr int violationStatus = 1;
constexpr int unreadableStatus = 2;

/// The command that repeats the running day, printed if it crashes. A signal handler reads it.
std::array<char, 256> abortMessage{};

void writeAbortMessage(int signal) {
  // Then it ends the program.
  std::signal(signal, SIG_DFL);
  std::size_t length = 0;
  while (length < abortMessage.size() && abortMessage[length] != '\0') {
    ++length;
  }
  static_cast<void>(!write(STDERR_FILENO, abortMessage.data(), length));
}

std::string commandFor(const Day& day, const ExploreOptions& options) {
  return "orvane-desk explore --seed " + std::to_string(day.seed) + " --days 1 --steps " +
         std::to_string(options.steps);
}

struct Totals {
  std::int64_t days = 0;
  std::int64_t steps = 0;
  std::int64_t events = 0;
  std::vector<std::int64_t> faults =
      std::vector<std::int64_t>(ActionGenerator::faultNames().size());
  RarePaths rarePaths;
  Fingerprint fingerprint;

  void add(const Day& day) {
    ++days;
    steps += day.stepCount;
    events += day.eventCount;
    for (std::size_t index = 0; index < faults.size(); ++index) {
      faults[index] += day.faultCounts[index];
    }
    rarePaths.add(day.rarePaths);
    fingerprint.add(day.fingerprint);
  }
};

void report(const Totals& totals, std::ostream& output) {
  std::int64_t faults = 0;
  const std::vector<std::string> kinds = ActionGenerator::faultNames();
  for (std::size_t index = 0; index < kinds.size(); ++index) {
    output << kinds[index] << ": " << totals.faults[index] << '\n';
    faults += totals.faults[index];
  }
  const std::vector<std::string> paths = RarePaths::names();
  for (std::size_t index = 0; index < paths.size(); ++index) {
    const std::int64_t count = totals.rarePaths.counts()[index];
    output << (count == 0 ? "never reached: " : "reached " + std::to_string(count) + " times: ")
           << paths[index] << '\n';
  }
  output << totals.days << " days, " << totals.steps << " steps, " << totals.events << " events, "
         << faults << " faults, fingerprint " << std::hex << std::setw(16) << std::setfill('0')
         << totals.fingerprint.value() << std::dec << std::endl;
}

void writeScript(std::ostream& script, const Day& day, const Violation& violation,
                 const Lines& lines) {
  script << "# " << violation.invariant << ": " << violation.text << "\n# Found by seed "
         << day.seed << ".\n";
  for (const std::string& line : lines) {
    script << line << '\n';
  }
  if (!violation.expectation.empty()) {
    script << "expect " << violation.expectation << '\n';
  }
}

/// Returns the name of the script; none if it cannot be written.
std::optional<std::string> shrink(const Day& day) {
  const std::string& invariant = day.violation->invariant;
  const Lines lines = shrunk(day.lines, [&](const Lines& some) {
    const auto violation = replayDay(day, some);
    return violation && violation->invariant == invariant;
  });
  Lines all;
  const auto violation = replayDay(day, lines, &all);
  const std::string name = "explore-" + std::to_string(day.seed) + ".desk";
  std::ofstream script(name);
  writeScript(script, day, violation.value_or(*day.violation), all);
  return script.flush() ? std::optional(name) : std::nullopt;
}

int reportFailure(const Day& day, const ExploreOptions& options, std::ostream& errors) {
  errors << "seed " << day.seed << ", step " << day.stepCount << ": " << day.violation->invariant
         << ": " << day.violation->text << '\n'
         << commandFor(day, options) << " --shrink" << std::endl;
  if (!options.shrinks) {
    return violationStatus;
  }
  const auto name = shrink(day);
  errors << (name ? "script: " + *name : "cannot write the script") << std::endl;
  return name ? violationStatus : unreadableStatus;
}

int checkScript(const std::string& file, std::ostream& errors) {
  std::ifstream script(file);
  CheckedSession session;
  std::string line;
  while (!session.problem() && !session.violation() && std::getline(script, line)) {
    if (firstWord(line) == "reset") {
      errors << file << ':' << session.lines().size() + 1
             << ": the explorer checks one machine, without \"reset\"" << std::endl;
      return unreadableStatus;
    }
    session.run(line);
  }
  const auto count = session.lines().size();
  session.end();
  if (session.violation()) {
    errors << file << ':' << count << ": " << session.violation()->invariant << ": "
           << session.violation()->text << std::endl;
    return violationStatus;
  }
  if (session.problem()) {
    errors << file << ':' << count << ": " << *session.problem() << std::endl;
    return unreadableStatus;
  }
  if (!script.eof()) {
    errors << file << ":0: the file cannot be read" << std::endl;
    return unreadableStatus;
  }
  return successStatus;
}

}  // namespace

int runExplore(const ExploreOptions& options, std::ostream& output, std::ostream& errors) {
  if (const auto message = missingFontsMessage()) {
    errors << "orvane-desk: " << *message << std::endl;
    return unreadableStatus;
  }
  int worst = successStatus;
  for (const std::string& script : options.scripts) {
    worst = std::max(worst, checkScript(script, errors));
  }
  if (!options.scripts.empty()) {
    return worst;
  }
  for (const int signal : {SIGABRT, SIGBUS, SIGFPE, SIGILL, SIGSEGV, SIGTRAP}) {
    std::signal(signal, writeAbortMessage);
  }
  Totals totals;
  for (std::int64_t index = 0; index < options.days && worst == successStatus; ++index) {
    Day day;
    day.seed = options.seed + static_cast<std::uint64_t>(index);
    std::snprintf(abortMessage.data(), abortMessage.size(), "\n%s\n",
                  commandFor(day, options).c_str());
    day = simulateDay(day.seed, options.steps);
    totals.add(day);
    if (day.violation) {
      worst = reportFailure(day, options, errors);
    }
  }
  report(totals, output);
  const bool hasReachedAll =
      std::ranges::find(totals.rarePaths.counts(), 0) == totals.rarePaths.counts().end();
  return worst == successStatus && options.needsAllPaths && !hasReachedAll ? violationStatus
                                                                           : worst;
}

}  // namespace orvane::desk::explore
