// ScriptContext is the environment of a command.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <ostream>
#include <string>

#include "desk/machine/Clock.hpp"
#include "desk/script/Problem.hpp"
#include "desk/script/Session.hpp"

namespace orvane::desk::script {

class InspectableTable;

/// The limits of a single command.
struct ScriptLimits {
  /// The greatest number of repetitions.
  std::int64_t repetitions = 1'000'000'000;
  /// The latest time of the clock: about 95 years after the machine was switched on.
  std::int64_t clockNanoseconds = 3'000'000'000 * Clock::nanosecondsPerSecond;
  /// Whether a script may write files.
  bool allowsFiles = true;
};

struct PictureRequest {
  std::string file;
  /// A surface; none for the whole desktop.
  std::optional<std::string> surface;
  /// Pixels per point.
  double scale = 1;
};

/// Writes a PNG file of the desktop or a surface. Returns why it failed: the surface is not open,
/// or the file cannot be written.
using PictureWriter = std::function<Problem(const Session& session, const PictureRequest& request)>;

struct ScriptContext {
  Session& session;
  /// The arguments of `show`.
  const InspectableTable& inspectables;
  /// The standard output of the script.
  std::ostream& output;
  ScriptLimits limits;
  /// Empty when pictures are not supported.
  PictureWriter pictureWriter;
  /// Called with the message of a failed expectation.
  std::function<void(const std::string& text)> expectationFailed;

  [[nodiscard]] Machine& machine() const { return session.machine(); }
  [[nodiscard]] ApplicationHost& application() const { return session.application(); }
};

}  // namespace orvane::desk::script
