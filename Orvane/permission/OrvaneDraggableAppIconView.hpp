// The application's icon, to be dragged into the system's list of applications: it carries the
// application bundle.
#pragma once

#include "Orvane/ui/View.hpp"

namespace orvane {

struct OrvaneDraggableAppIconView {
  ui::View body(const ui::Environment& environment) const;
};

}  // namespace orvane
