// Fuzzes the script interpreter: any script either runs or is rejected with a position and a
// reason.
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>
#include <utility>

#include "Orvane/base/Require.hpp"
#include "desk/script/ScriptProgram.hpp"

// NOLINTNEXTLINE(readability-identifier-naming): libFuzzer's own name
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  using orvane::desk::script::ScriptProgram;
  std::istringstream noInput;
  std::ostringstream output;
  std::ostringstream errors;
  std::istringstream script(std::string(reinterpret_cast<const char*>(bytes), size));
  ScriptProgram::Settings settings;
  // An input must not run for long and must not write files.
  settings.limits = {.repetitions = 50,
                     .clockNanoseconds = 20 * orvane::desk::Clock::nanosecondsPerSecond,
                     .allowsFiles = false};
  ScriptProgram program(std::move(settings), noInput, output, errors);
  const ScriptProgram::Status status = program.run(script, "script");
  orvane::require((status == ScriptProgram::held) == errors.str().empty(),
                  "the status and the report differ");
  return 0;
}
