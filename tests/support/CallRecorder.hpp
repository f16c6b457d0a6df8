// CallRecorder records the application's calls of the platform interface during its life.
#pragma once

#include <string>

#include "desk/machine/Machine.hpp"

namespace orvane::desk {

/// One at a time.
class CallRecorder {
 public:
  explicit CallRecorder(Machine& machine) : calls_(machine.calls) { calls_.startRecording(); }
  CallRecorder(const CallRecorder&) = delete;
  CallRecorder& operator=(const CallRecorder&) = delete;
  ~CallRecorder() { calls_.stopRecording(); }

  /// One line per call: the function and its arguments.
  [[nodiscard]] const std::string& text() const { return calls_.text(); }

 private:
  PlatformCalls& calls_;
};

}  // namespace orvane::desk
