// ApplicationFixture gives each test a machine for the whole application, and a hand that operates
// it.
#pragma once

#include "desk/application/ApplicationHost.hpp"
#include "tests/support/HandFixture.hpp"

namespace orvane {

/// The machine has no display and no permission, and the application does not run yet.
class ApplicationFixture : public desk::HandFixture {
 public:
  /// Ends the application before MachineFixture checks for leaks.
  ~ApplicationFixture() override { application.crash(); }

 protected:
  ApplicationFixture() : HandFixture(Process::none) {}

  [[nodiscard]] OrvaneModel& model() { return application.model(); }

  /// Presses a control as assistive programs do; false if it is missing or disabled.
  bool press(const std::string& label, const std::string& surface = "main") {
    return !hand.press({label, surface});
  }

  desk::ApplicationHost application{machine};
};

}  // namespace orvane
