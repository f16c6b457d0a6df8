// PlatformCalls records calls of the platform interface, for tests of their order and number.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <variant>

namespace orvane::desk {

/// Records only while it is switched on. A function of the platform interface records its calls if
/// a test depends on their order or number.
class PlatformCalls {
 public:
  using Argument = std::variant<std::string_view, double, std::int64_t, bool>;

  /// Forgets the earlier calls.
  void startRecording();
  void stopRecording() { isRecording_ = false; }
  void record(std::string_view function, std::initializer_list<Argument> arguments = {}) {
    if (isRecording_) {
      append(function, arguments);
    }
  }

  /// One line per call: the function and the recorded arguments, separated by blanks.
  [[nodiscard]] const std::string& text() const { return text_; }

 private:
  void append(std::string_view function, std::initializer_list<Argument> arguments);

  bool isRecording_ = false;
  std::string text_;
};

/// Records a call on the current machine.
void recordCall(std::string_view function,
                std::initializer_list<PlatformCalls::Argument> arguments = {});

}  // namespace orvane::desk
