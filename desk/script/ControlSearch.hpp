// ControlSearch finds the control that a command names by its label, and the window it names.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "desk/script/Arguments.hpp"
#include "desk/script/Complaint.hpp"
#include "desk/script/ScriptContext.hpp"
#include "desk/windows/Surfaces.hpp"

namespace orvane::desk::script {

struct ControlSearch {
  std::string label;
  /// Without one, the frontmost that has such a control.
  std::optional<std::string> surface;
  /// Which of several, from 1.
  std::int64_t nth = 1;
  std::optional<ui::Role> role;
};

/// The frontmost visible window of a name, or why it cannot be operated.
struct FoundWindow {
  /// Null when it cannot.
  std::shared_ptr<DeskWindow> window;
  Complaint complaint;
};

struct FoundControl {
  std::optional<SurfaceControl> control;
  /// Why there is none.
  Complaint complaint;
};

/// Reads `"LABEL" [in SURFACE] [nth N]`.
[[nodiscard]] ControlSearch readControlSearch(ScriptContext& context, Arguments& arguments);
/// Reads `[in SURFACE]`.
void readSurface(ScriptContext& context, Arguments& arguments, ControlSearch& search);
/// Of a window that a modal session keeps back nothing is found.
[[nodiscard]] FoundWindow findWindow(const std::string& surface);
/// Only an enabled control is found.
[[nodiscard]] FoundControl findControl(const ControlSearch& search);

}  // namespace orvane::desk::script
