// ScriptContext is what a command has to work with.
#pragma once

#include <cstdint>
#include <functional>
#include <ostream>
#include <string>

#include "desk/script/PictureWriter.hpp"
#include "desk/script/ScriptLimits.hpp"
#include "desk/script/Session.hpp"

namespace orvane::desk::script {

class ThingTable;

struct ScriptContext {
  Session& session;
  /// What `show` knows to show.
  const ThingTable& things;
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
