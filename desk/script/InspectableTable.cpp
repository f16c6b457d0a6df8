// What scripts can inspect, by name.
#include "desk/script/InspectableTable.hpp"

#include <utility>

#include "desk/script/Inspectables.hpp"

namespace orvane::desk::script {

void InspectableTable::add(Inspectable inspectable) {
  std::string name = inspectable.name;
  inspectables_.insert_or_assign(std::move(name), std::move(inspectable));
}

const Inspectable* InspectableTable::find(std::string_view name) const {
  const auto found = inspectables_.find(name);
  return found != inspectables_.end() ? &found->second : nullptr;
}

InspectableTable standardInspectables() {
  InspectableTable table;
  addMachineInspectables(table);
  addApplicationInspectables(table);
  addWindowInspectables(table);
  return table;
}

}  // namespace orvane::desk::script
