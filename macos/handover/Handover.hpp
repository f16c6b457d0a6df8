// One copy of the application runs in a session: two would move every pointer event twice and write
// over each other's settings. A copy that comes later asks the one that is there to show itself.
#pragma once

namespace orvane {

/// True when an earlier copy runs in this session; it has been asked to show its window, and the
/// caller ends. Main thread, before the application runs.
[[nodiscard]] bool handOverToRunningCopy();

/// From now on a later copy's request is taken as the application being opened again. Main thread,
/// once.
void answerLaterCopies();

}  // namespace orvane
