// The last line of the output, the fingerprint, and the exit status.
#include <fstream>
#include <regex>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "desk/explore/RunExplore.hpp"

namespace orvane::desk::explore {
namespace {

struct Outcome {
  int status;
  std::string lastLine;
  std::string errors;
};

Outcome outcomeOf(const ExploreOptions& options) {
  std::ostringstream output;
  std::ostringstream errors;
  const int status = runExplore(options, output, errors);
  std::string text = output.str();
  text.pop_back();
  return {status, text.substr(text.rfind('\n') + 1), errors.str()};
}

TEST(RunExplore, PrintsTheSameFingerprintOnlyForTheSameSeed) {
  const Outcome first = outcomeOf({.seed = 7, .days = 3, .steps = 60});
  EXPECT_EQ(first.status, 0) << first.errors;
  EXPECT_TRUE(std::regex_match(
      first.lastLine,
      std::regex("3 days, \\d+ steps, \\d+ events, \\d+ faults, fingerprint [0-9a-f]{16}")))
      << first.lastLine;
  EXPECT_EQ(outcomeOf({.seed = 7, .days = 3, .steps = 60}).lastLine, first.lastLine);
  EXPECT_NE(outcomeOf({.seed = 8, .days = 3, .steps = 60}).lastLine, first.lastLine);
}

TEST(RunExplore, FailsForAMissingScript) {
  std::ostringstream output;
  std::ostringstream errors;
  EXPECT_EQ(runExplore({.scripts = {"there-is-no-such.desk"}}, output, errors), 2);
  EXPECT_NE(errors.str().find("cannot be read"), std::string::npos);
}

}  // namespace
}  // namespace orvane::desk::explore
