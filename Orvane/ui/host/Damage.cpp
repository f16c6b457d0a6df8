// Collecting and joining damaged areas.
#include "Orvane/ui/host/Damage.hpp"

#include <utility>

namespace orvane::ui {

void Damage::add(const Rect& area) {
  if (!area.isEmpty()) {
    areas_.push_back(area);
  }
}

std::vector<Rect> Damage::take() {
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

}  // namespace orvane::ui
