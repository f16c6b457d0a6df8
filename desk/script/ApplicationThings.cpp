// What a script can look at of the application.
#include "desk/script/ApplicationThings.hpp"

#include <nlohmann/json.hpp>

#include "desk/script/JsonSnapshots.hpp"

namespace orvane::desk::script {

namespace {

Complaint lookAtDisplays(ScriptContext&, const std::string&, Json& shown) {
  shown = JsonSnapshots::displays();
  return std::nullopt;
}

Complaint lookAtGuard(ScriptContext& context, const std::string&, Json& shown) {
  shown = JsonSnapshots::guard(context.application(), context.machine());
  return std::nullopt;
}

Complaint lookAtMessages(ScriptContext& context, const std::string&, Json& shown) {
  shown = JsonSnapshots::messages(context.application());
  return std::nullopt;
}

Complaint lookAtModel(ScriptContext& context, const std::string&, Json& shown) {
  if (!context.application().isRunning()) {
    return "the application is not running";
  }
  shown = JsonSnapshots::model(context.application());
  return std::nullopt;
}

}  // namespace

void addApplicationThings(ThingTable& table) {
  table.add({.name = "displays", .parameter = {}, .look = lookAtDisplays, .countingMember = {}});
  table.add({.name = "guard", .parameter = {}, .look = lookAtGuard, .countingMember = {}});
  table.add({.name = "messages", .parameter = {}, .look = lookAtMessages, .countingMember = {}});
  table.add({.name = "model", .parameter = {}, .look = lookAtModel, .countingMember = {}});
}

}  // namespace orvane::desk::script
