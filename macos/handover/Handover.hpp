// Keeps a session to one copy of the application: two would move every pointer event twice and
// overwrite each other's settings. A later copy asks the running one to show itself.
#pragma once

namespace orvane {

/// True when an earlier copy is running in this session. It has then been asked to show its window,
/// and the caller must exit. Main thread, before the application runs.
[[nodiscard]] bool handOverToRunningCopy();

/// From now on treats a later copy's request as the user reopening the application. Main thread,
/// once.
void answerLaterCopies();

}  // namespace orvane
