// The present pass: samples every animation at one moment and determines where each node is and
// what has to be repainted.
#pragma once

#include "Orvane/ui/host/Damage.hpp"
#include "Orvane/ui/views/Node.hpp"

namespace orvane::ui {

/// Adds the areas that look different from the previous presentation to the damage. Returns whether
/// an animation is still running.
bool present(Node& root, double now, Damage& damage);

}  // namespace orvane::ui
