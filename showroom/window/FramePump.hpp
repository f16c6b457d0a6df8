// FramePump advances the machine with the computer's clock and schedules pictures. Nothing else in
// Orvane/, desk/ and showroom/ reads a real clock.
#pragma once

#include <cstdint>
#include <vector>

#include "showroom/window/DeskSession.hpp"

namespace orvane::showroom {

class FramePump {
 public:
  /// Schedules pictures on a grid of `framesPerSecond` while something changes.
  explicit FramePump(int framesPerSecond);

  /// Advances the machine by the time since the last call.
  void advance(DeskSession& session);
  /// Whether the next time of the grid has come.
  [[nodiscard]] bool isTimeToDraw() const;
  /// To be called before drawing. A picture that starts less than a frame late keeps the grid; a
  /// later one starts a new grid.
  void beginPicture();
  /// To be called when the picture is visible.
  void endPicture();
  /// When each picture became visible, in milliseconds since the construction.
  [[nodiscard]] const std::vector<double>& shownMilliseconds() const { return shown_; }
  /// The milliseconds until there is something to do without input. `isOutdated`: a picture is due
  /// at the next time of the grid.
  [[nodiscard]] int millisecondsToWait(const DeskSession& session, bool isOutdated) const;

 private:
  [[nodiscard]] static std::int64_t monotonicNanoseconds();

  std::int64_t frameNanoseconds_;
  std::int64_t last_;
  std::int64_t nextPicture_;
  std::int64_t start_;
  std::vector<double> shown_;
};

}  // namespace orvane::showroom
