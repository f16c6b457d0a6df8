// ScriptContext is what a command has to work with.
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

/// How much one command may ask for.
struct ScriptLimits {
  /// How often one command may repeat itself.
  std::int64_t repetitions = 1'000'000'000;
  /// How late it may become: about 95 years after the machine was switched on.
  std::int64_t clockNanoseconds = 3'000'000'000 * Clock::nanosecondsPerSecond;
  /// Whether a script may write files.
  bool allowsFiles = true;
};

struct PictureRequest {
  std::string file;
  /// One window, menu or panel; the whole desktop when there is none.
  std::optional<std::string> surface;
  /// Pixels per point.
  double scale = 1;
};

/// Draws what is to be seen on a machine into a PNG file. Says what was wrong: a surface that is
/// not there, a file that cannot be written.
using PictureWriter = std::function<Problem(const Session& session, const PictureRequest& request)>;

struct ScriptContext {
  Session& session;
  /// What `show` knows to show.
  const InspectableTable& inspectables;
  /// Where commands print.
  std::ostream& output;
  ScriptLimits limits;
  /// Empty when no pictures can be drawn.
  PictureWriter pictureWriter;
  /// Called with the text of an expectation that failed.
  std::function<void(const std::string& text)> expectationFailed;

  [[nodiscard]] Machine& machine() const { return session.machine(); }
  [[nodiscard]] ApplicationHost& application() const { return session.application(); }
};

}  // namespace orvane::desk::script
