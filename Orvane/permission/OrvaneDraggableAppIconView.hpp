// The application's icon, which the user can drag into the system's list of applications. The drag
// carries the application bundle.
#pragma once

#include "Orvane/ui/views/View.hpp"

namespace orvane {

struct OrvaneDraggableAppIconView {
  [[nodiscard]] ui::View body(const ui::Environment& environment) const;
};

}  // namespace orvane
