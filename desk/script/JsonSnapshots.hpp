// JsonSnapshots turn the state of the machine and of the application into JSON. Keys stand in the
// order in which they are printed; none is ever renamed or removed.
#pragma once

#include <nlohmann/json_fwd.hpp>

#include "Orvane/platform/Quartz.hpp"
#include "desk/application/ApplicationHost.hpp"
#include "desk/machine/Machine.hpp"

namespace orvane::desk::script::JsonSnapshots {

using Json = nlohmann::ordered_json;

/// [x, y, w, h].
[[nodiscard]] Json rectangle(const CGRect& rect);

/// The Dock as it is. "display" is null when there is none.
[[nodiscard]] Json dock(const Machine& machine);
/// In global coordinates; "display" is null when there is none.
[[nodiscard]] Json pointer(const Machine& machine);
/// Every link or file that was asked to be opened, in order.
[[nodiscard]] Json opened(const Machine& machine);
/// Seconds: "media" by the media clock, "now" since the machine was switched on, "calendar" since
/// 1 January 2001, 0:00 UTC.
[[nodiscard]] Json clock(const Machine& machine);
/// The application's stored user defaults by key.
[[nodiscard]] Json defaults(const Machine& machine);
/// What the application did wrong so far: the first faults, and how many there were.
[[nodiscard]] Json faults(const Machine& machine);
/// What happened since the machine was switched on, as counts.
[[nodiscard]] Json counters(const Machine& machine);

/// The attached displays as the application sees them at this moment, whether it runs or not.
[[nodiscard]] Json displays();
/// Also while the application does not run: then there is no guard, and what it would say is what
/// a new one says.
[[nodiscard]] Json guard(const ApplicationHost& application, const Machine& machine);
/// What the guard reported since the last launch.
[[nodiscard]] Json messages(const ApplicationHost& application);
/// The application must be running.
[[nodiscard]] Json model(const ApplicationHost& application);

}  // namespace orvane::desk::script::JsonSnapshots
