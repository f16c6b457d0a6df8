// FramePump turns the time of the computer into the machine's time, and says when to draw. It is
// the only place in the project that reads a wall clock.
#pragma once

#include <cstdint>

#include "desk/window/DeskSession.hpp"

namespace orvane::desk {

class FramePump {
 public:
  /// At most so many pictures a second.
  explicit FramePump(int framesPerSecond);

  /// Lets the machine's time pass by what has passed since the last call.
  void advance(DeskSession& session);
  /// Whether enough time has passed since the last picture for another one.
  [[nodiscard]] bool isTimeToDraw() const;
  void noteDrawn();
  /// For how many milliseconds there is nothing to do unless someone touches something.
  /// `isOutdated` says whether a picture waits to be drawn.
  [[nodiscard]] int millisecondsToWait(const DeskSession& session, bool isOutdated) const;

 private:
  [[nodiscard]] static std::int64_t wallNanoseconds();

  std::int64_t frameNanoseconds_;
  std::int64_t last_;
  std::int64_t lastDrawn_;
};

}  // namespace orvane::desk
