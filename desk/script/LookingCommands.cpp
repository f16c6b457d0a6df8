// The commands that look and compare: show, find, picture, echo, expect.
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

#include "Orvane/geometry/OrvaneScreen.hpp"
#include "Orvane/platform/appkit/Screen.hpp"
#include "desk/script/Commands.hpp"
#include "desk/script/Expectation.hpp"
#include "desk/script/JsonText.hpp"
#include "desk/script/ThingTable.hpp"

namespace orvane::desk::script {

namespace {

constexpr double greatestScale = 16;

/// A thing, and what it is asked for.
struct Look {
  const Thing* thing = nullptr;
  std::string argument;
};

struct Expected {
  std::string path;
  Look look;
  /// Where the value stands in what is seen.
  std::vector<std::string> place;
  std::optional<Json> value;
};

/// Null, and a complaint, when there is no such thing.
const Thing* findThing(const ScriptContext& context, const std::string& name,
                       Arguments& arguments) {
  const Thing* const thing = context.things.find(name);
  if (thing == nullptr) {
    arguments.complain("there is no \"" + name + "\" to look at, only " + context.things.names());
  }
  return thing;
}

Look readLook(ScriptContext& context, Arguments& arguments) {
  Look look{findThing(context, arguments.text("THING"), arguments), {}};
  if (look.thing != nullptr && !look.thing->parameter.empty()) {
    look.argument = arguments.text(look.thing->parameter);
  }
  return look;
}

Expected readExpected(ScriptContext& context, Arguments& arguments) {
  Expected expected;
  expected.path = arguments.text("THING.PATH");
  const std::string written(arguments.restAsWritten("VALUE"));
  expected.value = parseJson(written);
  if (!expected.value) {
    arguments.complain("VALUE is not JSON: " + written + " (a text stands in double quotes)");
  }
  std::optional<std::vector<std::string>> parts = parsePath(expected.path);
  if (!parts) {
    arguments.complain("\"" + expected.path + "\" is not a path");
    return expected;
  }
  expected.look.thing = findThing(context, parts->front(), arguments);
  parts->erase(parts->begin());
  if (expected.look.thing != nullptr && !expected.look.thing->parameter.empty()) {
    if (parts->empty()) {
      arguments.complain(expected.look.thing->parameter + " is missing after \"" + expected.path +
                         ".\"");
      return expected;
    }
    expected.look.argument = std::move(parts->front());
    parts->erase(parts->begin());
  }
  expected.place = std::move(*parts);
  return expected;
}

PictureRequest readPictureRequest(ScriptContext& /*context*/, Arguments& arguments) {
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
  return request;
}

Complaint show(ScriptContext& context, const Look& look) {
  Json shown;
  if (Complaint complaint = look.thing->look(context, look.argument, shown)) {
    return complaint;
  }
  context.output << jsonText(shown) << '\n';
  return std::nullopt;
}

Complaint expect(ScriptContext& context, const Expected& expected) {
  Json shown;
  if (Complaint complaint = expected.look.thing->look(context, expected.look.argument, shown)) {
    return complaint;
  }
  const std::optional<Json> got = valueAt(*expected.look.thing, shown, expected.place);
  if (!got || !isSameJson(*got, *expected.value)) {
    context.expectationFailed(failureText(expected.path, *expected.value, got));
  }
  return std::nullopt;
}

void find(ScriptContext& context, const std::string& identifier) {
  const auto index = OrvaneScreen::orvaneFindScreen(identifier, appkit::Screen::screens());
  context.output << jsonText(Json{{"index", index ? Json(*index) : Json(nullptr)}}) << '\n';
}

Complaint picture(ScriptContext& context, const PictureRequest& request) {
  if (!context.limits.allowsFiles) {
    return "files must not be written";
  }
  if (!context.pictureWriter) {
    return "no pictures can be drawn here";
  }
  return context.pictureWriter(context.session, request);
}

}  // namespace

void addLookingCommands(CommandTable& table) {
  table.add("show", takes(Parameter<Look>{"THING", readLook}), show);
  table.add("expect", takes(Parameter<Expected>{"THING.PATH VALUE", readExpected}), expect);
  table.add("find", takes(text("\"IDENTIFIER\"")), find);
  table.add("picture",
            takes(Parameter<PictureRequest>{"FILE [SURFACE] [scale S]", readPictureRequest}),
            picture);
  table.add(
      "echo",
      takes(Parameter<std::string>{
          "TEXT", [](ScriptContext&, Arguments& arguments) { return arguments.restAsText(); }}),
      [](ScriptContext& context, const std::string& words) { context.output << words << '\n'; });
}

}  // namespace orvane::desk::script
