// The text of each recorded call.
#include "desk/machine/PlatformCalls.hpp"

#include <iomanip>
#include <sstream>
#include <type_traits>

#include "desk/machine/Machine.hpp"

namespace orvane::desk {

void PlatformCalls::startRecording() {
  isRecording_ = true;
  text_.clear();
}

void PlatformCalls::append(std::string_view function, std::initializer_list<Argument> arguments) {
  std::ostringstream call;
  call << std::boolalpha << function;
  for (const Argument& argument : arguments) {
    call << ' ';
    std::visit(
        [&call](const auto& value) {
          if constexpr (std::is_same_v<decltype(value), const std::string_view&>) {
            call << std::quoted(value);
          } else {
            call << value;
          }
        },
        argument);
  }
  text_ += call.str() + "\n";
}

void recordCall(std::string_view function,
                std::initializer_list<PlatformCalls::Argument> arguments) {
  Machine::current().calls.record(function, arguments);
}

}  // namespace orvane::desk
