// Session is the machine of a script, with the application.
#include "desk/script/Session.hpp"

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
  const MachineEnd machineEnd = state_->scope.end();
  for (const std::string& object : machineEnd.leakedObjects) {
    problems_.push_back("not released: " + object);
  }
  for (const std::string& fault : machineEnd.faults) {
    problems_.push_back("fault: " + fault);
  }
  state_.reset();
}

void Session::reset() {
  end();
  begin();
}

}  // namespace orvane::desk::script
