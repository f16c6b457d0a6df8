// MachineFixture gives each test its own machine, by default with a running process, and checks at
// the end that no Core Foundation object was leaked or misused.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "desk/machine/MachineScope.hpp"

namespace orvane::desk {

/// The check runs when the fixture is destroyed: after the test's locals and the members of derived
/// fixtures, so that what they own has been released.
class MachineFixture : public testing::Test {
 public:
  ~MachineFixture() override {
    for (const std::string& problem : scope_.end()) {
      ADD_FAILURE() << problem;
    }
  }

 private:
  MachineScope scope_;

 protected:
  enum class Process { running, none };

  explicit MachineFixture(Process process = Process::running) {
    if (process == Process::running) {
      machine.process.start();
    }
  }

  /// Stores a value in the user defaults.
  void store(std::string_view key, PropertyValue value) {
    machine.userDefaults.set(key, std::move(value));
  }
  /// The links that the process tried to open; " refused" follows those that failed.
  [[nodiscard]] std::vector<std::string> openedLinks() const {
    std::vector<std::string> urls;
    for (const Links::Opened& opened : machine.links.opened()) {
      urls.push_back(opened.url + (opened.wasAccepted ? "" : " refused"));
    }
    return urls;
  }

  /// The platform functions that `action` calls, one line each: the name and the arguments.
  template <typename Action>
  [[nodiscard]] std::string callsOf(const Action& action) {
    machine.calls.startRecording();
    action();
    machine.calls.stopRecording();
    return machine.calls.text();
  }

  Machine& machine = scope_.machine();
};

}  // namespace orvane::desk
