// Session is the machine of a script, with the application.
#include "desk/script/Session.hpp"

#include <algorithm>
#include <iterator>
#include <utility>

namespace orvane::desk::script {

Session::Session(Prepare prepare) : prepare_(std::move(prepare)) {
  begin();
}

Session::~Session() {
  end();
}

void Session::begin() {
  state_ = std::make_unique<State>();
  if (prepare_) {
    prepare_(state_->application);
  }
}

void Session::end() {
  if (state_ == nullptr) {
    return;
  }
  std::ranges::move(state_->scope.end(), std::back_inserter(problems_));
  state_.reset();
}

void Session::reset() {
  end();
  begin();
}

}  // namespace orvane::desk::script
