// The commands that look and compare: show, find, picture, echo, expect.
#include "desk/script/LookingCommands.hpp"

#include <optional>
#include <string>
#include <utility>

#include <nlohmann/json.hpp>

#include "Orvane/geometry/OrvaneScreen.hpp"
#include "Orvane/platform/appkit/Screen.hpp"
#include "desk/script/Expectation.hpp"
#include "desk/script/JsonText.hpp"
#include "desk/script/ThingTable.hpp"

namespace orvane::desk::script {

namespace {

constexpr double greatestScale = 16;

/// Null, and a complaint, when there is no such thing.
const Thing* findThing(const ScriptContext& context, const std::string& name,
                       Arguments& arguments) {
  const Thing* const thing = context.things.find(name);
  if (thing == nullptr) {
    arguments.complain("there is no \"" + name + "\" to look at, only " + context.things.names());
  }
  return thing;
}

Complaint show(ScriptContext& context, Arguments& arguments) {
  const Thing* const thing = findThing(context, arguments.text("THING"), arguments);
  std::string argument;
  if (thing != nullptr && !thing->parameter.empty()) {
    argument = arguments.text(thing->parameter);
  }
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  Json shown;
  if (Complaint complaint = thing->look(context, argument, shown)) {
    return complaint;
  }
  context.output << jsonText(shown) << '\n';
  return std::nullopt;
}

Complaint expect(ScriptContext& context, Arguments& arguments) {
  const std::string path = arguments.text("THING.PATH");
  const std::string written(arguments.restAsWritten("VALUE"));
  const std::optional<Json> expected = parseJson(written);
  if (!expected) {
    arguments.complain("VALUE is not JSON: " + written + " (a text stands in double quotes)");
  }
  std::optional<std::vector<std::string>> parts = parsePath(path);
  if (!parts) {
    arguments.complain("\"" + path + "\" is not a path");
  }
  const Thing* const thing = parts ? findThing(context, parts->front(), arguments) : nullptr;
  std::string argument;
  if (thing != nullptr) {
    parts->erase(parts->begin());
    if (!thing->parameter.empty() && parts->empty()) {
      arguments.complain(thing->parameter + " is missing after \"" + path + ".\"");
    } else if (!thing->parameter.empty()) {
      argument = std::move(parts->front());
      parts->erase(parts->begin());
    }
  }
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  Json shown;
  if (Complaint complaint = thing->look(context, argument, shown)) {
    return complaint;
  }
  const std::optional<Json> got = valueAt(*thing, shown, *parts);
  if (!got || !isSameJson(*got, *expected)) {
    context.expectationFailed(failureText(path, *expected, got));
  }
  return std::nullopt;
}

Complaint find(ScriptContext& context, Arguments& arguments) {
  const std::string identifier = arguments.text("\"IDENTIFIER\"");
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  const auto index = OrvaneScreen::orvaneFindScreen(identifier, appkit::Screen::screens());
  context.output << jsonText(Json{{"index", index ? Json(*index) : Json(nullptr)}}) << '\n';
  return std::nullopt;
}

Complaint picture(ScriptContext& context, Arguments& arguments) {
  PictureRequest request;
  request.file = arguments.text("FILE");
  bool hasScale = arguments.keyword("scale");
  if (!hasScale && !arguments.isEmpty()) {
    request.surface = arguments.text("SURFACE");
    hasScale = arguments.keyword("scale");
  }
  if (hasScale) {
    request.scale = arguments.number("S");
    if (!(request.scale > 0 && request.scale <= greatestScale)) {
      arguments.complain("the scale must be greater than 0 and at most 16");
    }
  }
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  if (!context.limits.allowsFiles) {
    return "files must not be written";
  }
  if (!context.pictureWriter) {
    return "no pictures can be drawn here";
  }
  return context.pictureWriter(context.session, request);
}

Complaint echo(ScriptContext& context, Arguments& arguments) {
  const std::string text = arguments.restAsText();
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  context.output << text << '\n';
  return std::nullopt;
}

}  // namespace

void addLookingCommands(CommandTable& table) {
  table.add({"show", "THING", show});
  table.add({"expect", "THING.PATH VALUE", expect});
  table.add({"find", "\"IDENTIFIER\"", find});
  table.add({"picture", "FILE [SURFACE] [scale S]", picture});
  table.add({"echo", "TEXT", echo});
}

}  // namespace orvane::desk::script
