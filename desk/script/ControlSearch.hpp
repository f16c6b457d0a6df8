// ControlSearch finds the control that a command names by its label.
#pragma once

#include <cstdint>
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

struct FoundControl {
  std::optional<SurfaceControl> control;
  /// Why there is none.
  Complaint complaint;
};

/// Reads `"LABEL" [in SURFACE] [nth N]`.
[[nodiscard]] ControlSearch readControlSearch(ScriptContext& context, Arguments& arguments);
/// Reads `[in SURFACE]`.
void readSurface(ScriptContext& context, Arguments& arguments, ControlSearch& search);
/// Only an enabled control is found.
[[nodiscard]] FoundControl findControl(const ControlSearch& search);

}  // namespace orvane::desk::script
