// Lives the days, adds up what they saw, and says what went wrong and how to see it again.
#include "desk/explore/RunExplore.hpp"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstddef>
#include <cstdio>
#include <fstream>
#include <optional>

#include <unistd.h>

#include "desk/canvas/PinnedFonts.hpp"
#include "desk/explore/Day.hpp"
#include "desk/explore/Habits.hpp"
#include "desk/explore/Shrink.hpp"

namespace orvane::desk {

namespace {

using explore::Day;
using explore::Lines;
using explore::Violation;

constexpr int heldStatus = 0;
constexpr int brokenStatus = 1;
constexpr int unreadableStatus = 2;

/// What the handler of a failed requirement says last; a plain buffer, as a handler may read it.
std::array<char, 256> lastWords{};

void sayLastWords(int /*signal*/) {
  std::size_t length = 0;
  while (length < lastWords.size() && lastWords[length] != '\0') {
    ++length;
  }
  static_cast<void>(!write(STDERR_FILENO, lastWords.data(), length));
}

std::string commandFor(const Day& day, const ExploreOptions& options) {
  return "orvane-desk explore --seed " + std::to_string(day.seed) + " --days 1 --steps " +
         std::to_string(options.steps);
}

std::string hexadecimal(std::uint64_t number) {
  std::array<char, 17> text{};
  std::snprintf(text.data(), text.size(), "%016llx", static_cast<unsigned long long>(number));
  return text.data();
}

struct Sums {
  std::int64_t days = 0;
  std::int64_t steps = 0;
  std::int64_t events = 0;
  std::vector<std::int64_t> faults =
      std::vector<std::int64_t>(explore::Habits::faultNames().size());
  explore::RarePaths rarePaths;
  explore::Fingerprint fingerprint;

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

void report(const Sums& sums, std::ostream& output) {
  std::int64_t faults = 0;
  const std::vector<std::string> kinds = explore::Habits::faultNames();
  for (std::size_t index = 0; index < kinds.size(); ++index) {
    output << kinds[index] << ": " << sums.faults[index] << '\n';
    faults += sums.faults[index];
  }
  const std::vector<std::string> paths = explore::RarePaths::names();
  for (std::size_t index = 0; index < paths.size(); ++index) {
    const std::int64_t count = sums.rarePaths.counts()[index];
    output << (count == 0 ? "never reached: " : "reached " + std::to_string(count) + " times: ")
           << paths[index] << '\n';
  }
  output << sums.days << " days, " << sums.steps << " steps, " << sums.events << " events, "
         << faults << " faults, fingerprint " << hexadecimal(sums.fingerprint.value()) << std::endl;
}

void writeScript(std::ostream& script, const Day& day, const Violation& violation,
                 const Lines& lines) {
  script << "# " << violation.promise << ": " << violation.text << "\n# Found by seed " << day.seed
         << ".\n";
  for (const std::string& line : lines) {
    script << line << '\n';
  }
  if (!violation.expectation.empty()) {
    script << "expect " << violation.expectation << '\n';
  }
}

/// The name of the script; none when it cannot be written.
std::optional<std::string> shrink(const Day& day) {
  const std::string& promise = day.violation->promise;
  const Lines lines = explore::shrunk(day.lines, [&](const Lines& some) {
    const auto violation = explore::repeatDay(day, some);
    return violation && violation->promise == promise;
  });
  Lines all;
  const auto violation = explore::repeatDay(day, lines, &all);
  const std::string name = "explore-" + std::to_string(day.seed) + ".desk";
  std::ofstream script(name);
  writeScript(script, day, violation.value_or(*day.violation), all);
  return script.flush() ? std::optional(name) : std::nullopt;
}

int tellFailure(const Day& day, const ExploreOptions& options, std::ostream& errors) {
  errors << "seed " << day.seed << ", step " << day.stepCount << ": " << day.violation->promise
         << ": " << day.violation->text << '\n'
         << commandFor(day, options) << " --shrink" << std::endl;
  if (!options.shrinks) {
    return brokenStatus;
  }
  const auto name = shrink(day);
  errors << (name ? "the script is " + *name : "the script cannot be written") << std::endl;
  return name ? brokenStatus : unreadableStatus;
}

int watchScript(const std::string& file, std::ostream& errors) {
  std::ifstream script(file);
  explore::Trial trial;
  std::string line;
  while (std::getline(script, line)) {
    trial.take(line);
  }
  const auto count = trial.lines().size();
  trial.end();
  if (!script.eof()) {
    errors << file << ":0: the file cannot be read" << std::endl;
    return unreadableStatus;
  }
  if (trial.violation()) {
    errors << file << ':' << count << ": " << trial.violation()->promise << ": "
           << trial.violation()->text << std::endl;
    return brokenStatus;
  }
  return heldStatus;
}

}  // namespace

int runExplore(const ExploreOptions& options, std::ostream& output, std::ostream& errors) {
  if (const auto message = missingFontsMessage()) {
    errors << "orvane-desk: " << *message << std::endl;
    return unreadableStatus;
  }
  int worst = heldStatus;
  for (const std::string& script : options.scripts) {
    worst = std::max(worst, watchScript(script, errors));
  }
  if (!options.scripts.empty()) {
    return worst;
  }
  std::signal(SIGABRT, sayLastWords);
  Sums sums;
  for (std::int64_t index = 0; index < options.days && worst == heldStatus; ++index) {
    Day day;
    day.seed = options.seed + static_cast<std::uint64_t>(index);
    std::snprintf(lastWords.data(), lastWords.size(), "\n%s\n", commandFor(day, options).c_str());
    day = explore::liveDay(day.seed, options.steps);
    sums.add(day);
    if (day.violation) {
      worst = tellFailure(day, options, errors);
    }
  }
  report(sums, output);
  const bool hasReachedAll =
      std::ranges::find(sums.rarePaths.counts(), 0) == sums.rarePaths.counts().end();
  return worst == heldStatus && options.needsAllPaths && !hasReachedAll ? brokenStatus : worst;
}

}  // namespace orvane::desk
