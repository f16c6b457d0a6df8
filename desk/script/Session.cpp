// Session is the machine that a script works on, with the application on it.
#include "desk/script/Session.hpp"

namespace orvane::desk::script {

Session::Session() : state_(std::make_unique<State>()) {}

Session::~Session() {
  end();
}

void Session::end() {
  if (state_ == nullptr) {
    return;
  }
  const MachineEnd machineEnd = state_->scope.end();
  for (const std::string& object : machineEnd.leakedObjects) {
    mistakes_.push_back("not released: " + object);
  }
  for (const std::string& fault : machineEnd.faults) {
    mistakes_.push_back("fault: " + fault);
  }
  state_.reset();
}

void Session::reset() {
  end();
  state_ = std::make_unique<State>();
}

}  // namespace orvane::desk::script
