// What a script can look at, by name. Whoever has something to show adds it.
#include "desk/script/ThingTable.hpp"

#include <utility>

#include "desk/script/Things.hpp"

namespace orvane::desk::script {

void ThingTable::add(Thing thing) {
  std::string name = thing.name;
  things_.insert_or_assign(std::move(name), std::move(thing));
}

const Thing* ThingTable::find(std::string_view name) const {
  const auto found = things_.find(name);
  return found != things_.end() ? &found->second : nullptr;
}

ThingTable standardThings() {
  ThingTable table;
  addMachineThings(table);
  addApplicationThings(table);
  addWindowThings(table);
  return table;
}

}  // namespace orvane::desk::script
