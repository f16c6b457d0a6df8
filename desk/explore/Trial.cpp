// Carrying out lines, one by one.
#include "desk/explore/Trial.hpp"

#include <utility>

namespace orvane::desk::explore {

Trial::Trial()
    : safety_(std::make_unique<Safety>(session_->machine(), session_->application())),
      context_{.session = *session_,
               .inspectables = inspectables_,
               .output = output_,
               .limits = {.allowsFiles = false},
               .pictureWriter = {},
               .expectationFailed = [](const std::string&) {}},
      interpreter_(commands_, context_),
      moment_(Moment::of(session_->machine(), session_->application())) {}

void Trial::take(const std::string& line) {
  if (violation_) {
    return;
  }
  lines_.push_back(line);
  safety_->begin();
  const bool isCarriedOut = !interpreter_.run(line);
  const Moment before =
      std::exchange(moment_, Moment::of(session_->machine(), session_->application()));
  violation_ = safety_->check(line, before, moment_);
  rarePaths_.note({.line = line,
                   .before = before,
                   .after = moment_,
                   .filter = safety_->filter().step(),
                   .isStale = safety_->isStale(),
                   .machine = session_->machine(),
                   .application = session_->application()});
  fingerprint_.add(std::string_view(line));
  fingerprint_.add(isCarriedOut);
  fingerprint_.add(std::string_view(output_.view()));
  output_.str({});
  const CGPoint place = session_->machine().pointer.location();
  fingerprint_.add(place.x);
  fingerprint_.add(place.y);
  moment_.addTo(fingerprint_);
  events_ = safety_->filter().eventCount();
}

void Trial::takeAll(const std::vector<std::string>& lines) {
  for (const std::string& line : lines) {
    take(line);
  }
}

void Trial::complain(Violation violation) {
  if (!violation_) {
    violation_ = std::move(violation);
  }
}

void Trial::end() {
  safety_.reset();
  session_->end();
  for (const std::string& problem : session_->problems()) {
    complain({"end", problem});
  }
}

}  // namespace orvane::desk::explore
