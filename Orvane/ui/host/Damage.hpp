// The areas of a host that have to be repainted.
#pragma once

#include <vector>

#include "Orvane/ui/layout/Rect.hpp"

namespace orvane::ui {

/// In host coordinates. Areas may reach beyond the host.
class Damage {
 public:
  /// An empty area adds nothing.
  void add(const Rect& area);
  /// What was added since the last call; overlapping areas are joined.
  std::vector<Rect> take();

 private:
  std::vector<Rect> areas_;
};

}  // namespace orvane::ui
