// ApplicationFixture gives each test a machine on which the whole application can be launched, and
// a hand that works it.
#pragma once

#include "desk/application/ApplicationHost.hpp"
#include "tests/support/HandFixture.hpp"

namespace orvane {

/// The machine has no display and no permission, and the application does not run yet.
class ApplicationFixture : public desk::HandFixture {
 public:
  /// What is left of the application is looked for when it has ended.
  ~ApplicationFixture() override { application.crash(); }

 protected:
  ApplicationFixture() : HandFixture(Process::none) {}

  [[nodiscard]] OrvaneModel& model() { return application.model(); }

  /// The accessibility press of a control; false when there is none or it is disabled.
  bool press(const std::string& label, const std::string& surface) {
    return !hand.press({label, surface});
  }

  desk::ApplicationHost application{machine};
};

}  // namespace orvane
