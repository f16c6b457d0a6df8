// What scripts can inspect, by name.
#include "desk/script/Inspectables.hpp"

namespace orvane::desk::script {

InspectableTable standardInspectables() {
  InspectableTable table;
  addMachineInspectables(table);
  addApplicationInspectables(table);
  addWindowInspectables(table);
  return table;
}

}  // namespace orvane::desk::script
