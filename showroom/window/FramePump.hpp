// FramePump turns the time of the computer into the machine's time, and says when to draw. It is
// the only place in the project that reads a wall clock.
#pragma once

#include <cstdint>
#include <vector>

#include "showroom/window/DeskSession.hpp"

namespace orvane::showroom {

class FramePump {
 public:
  /// At most so many pictures a second, on a grid of that many moments while something changes.
  explicit FramePump(int framesPerSecond);

  /// Lets the machine's time pass by what has passed since the last call.
  void advance(DeskSession& session);
  /// Whether the next moment of the grid has come.
  [[nodiscard]] bool isTimeToDraw() const;
  /// A picture is begun. One that comes within a frame of its moment keeps the grid, however long
  /// it takes to draw; a later one begins a new grid.
  void beginPicture();
  /// The picture can be seen.
  void endPicture();
  /// When each picture could be seen, in milliseconds since the pump began.
  [[nodiscard]] const std::vector<double>& shownMilliseconds() const { return shown_; }
  /// For how many milliseconds there is nothing to do unless someone touches something.
  /// `isOutdated` says whether a picture waits to be drawn.
  [[nodiscard]] int millisecondsToWait(const DeskSession& session, bool isOutdated) const;

 private:
  [[nodiscard]] static std::int64_t wallNanoseconds();

  std::int64_t frameNanoseconds_;
  std::int64_t last_;
  std::int64_t nextPicture_;
  std::int64_t start_;
  std::vector<double> shown_;
};

}  // namespace orvane::showroom
