// After each line, the new state is compared with the previous one.
#include "desk/explore/CheckedSession.hpp"

#include <utility>

namespace orvane::desk::explore {

CheckedSession::CheckedSession()
    : checker_(std::make_unique<InvariantChecker>(session_->machine())),
      context_{.session = *session_,
               .inspectables = inspectables_,
               .output = output_,
               .limits = {.allowsFiles = false},
               .pictureWriter = {},
               .expectationFailed =
                   [this](const std::string& text) {
                     report({"expectation", text});
                   }},
      observation_(Observation::of(session_->machine(), session_->application())) {}

void CheckedSession::run(const std::string& line) {
  if (violation_) {
    return;
  }
  lines_.push_back(line);
  checker_->beginStep(line);
  problem_ = commands_.run(line, context_);
  const Observation before =
      std::exchange(observation_, Observation::of(session_->machine(), session_->application()));
  const Step step = checker_->endStep(line, !problem_, before, observation_);
  if (auto violation = checker_->check(step)) {
    report(std::move(*violation));
  }
  rarePaths_.note(step);
  fingerprint_.add(std::string_view(line));
  fingerprint_.add(!problem_);
  fingerprint_.add(std::string_view(output_.view()));
  output_.str({});
  const CGPoint place = session_->machine().pointer.location();
  fingerprint_.add(place.x);
  fingerprint_.add(place.y);
  observation_.addTo(fingerprint_);
  events_ = checker_->eventCount();
}

void CheckedSession::runAll(const std::vector<std::string>& lines) {
  for (const std::string& line : lines) {
    run(line);
  }
}

void CheckedSession::report(Violation violation) {
  if (!violation_) {
    violation_ = std::move(violation);
  }
}

void CheckedSession::end() {
  checker_.reset();
  session_->end();
  for (const std::string& problem : session_->problems()) {
    report({"end", problem});
  }
}

}  // namespace orvane::desk::explore
