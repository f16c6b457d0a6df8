// What a script can look at of the machine itself.
#include "desk/script/MachineThings.hpp"

#include <utility>

#include <nlohmann/json.hpp>

#include "desk/script/JsonSnapshots.hpp"

namespace orvane::desk::script {

namespace {

Thing machineThing(std::string name, Json (*snapshot)(const Machine&)) {
  return {.name = std::move(name),
          .parameter = {},
          .look = [snapshot](ScriptContext& context, const std::string&, Json& shown) -> Complaint {
            shown = snapshot(context.machine());
            return std::nullopt;
          },
          .countingMember = {}};
}

}  // namespace

void addMachineThings(ThingTable& table) {
  Thing dock = machineThing("dock", JsonSnapshots::dock);
  dock.countingMember = "reveals";
  table.add(std::move(dock));
  table.add(machineThing("pointer", JsonSnapshots::pointer));
  table.add(machineThing("opened", JsonSnapshots::opened));
  table.add(machineThing("clock", JsonSnapshots::clock));
  table.add(machineThing("defaults", JsonSnapshots::defaults));
  table.add(machineThing("faults", JsonSnapshots::faults));
  table.add(machineThing("counters", JsonSnapshots::counters));
}

}  // namespace orvane::desk::script
