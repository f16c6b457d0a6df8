// The areas of a host that have to be repainted.
#pragma once

#include <utility>
#include <vector>

#include "Orvane/ui/layout/Rect.hpp"

namespace orvane::ui {

/// In host coordinates. Areas may reach beyond the host.
class Damage {
 public:
  /// An empty area adds nothing.
  void add(const Rect& area) {
    if (!area.isEmpty()) {
      areas_.push_back(area);
    }
  }
  /// What was added since the last call; overlapping areas are joined.
  std::vector<Rect> take() {
    std::vector<Rect> joined;
    for (Rect area : std::exchange(areas_, {})) {
      // The joined area is larger and may overlap another one.
      for (auto other = joined.begin(); other != joined.end();) {
        if (area.intersects(*other)) {
          area = area.united(*other);
          joined.erase(other);
          other = joined.begin();
        } else {
          ++other;
        }
      }
      joined.push_back(area);
    }
    return joined;
  }

 private:
  std::vector<Rect> areas_;
};

}  // namespace orvane::ui
