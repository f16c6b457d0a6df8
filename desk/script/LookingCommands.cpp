// The commands for inspection: show, find, picture, echo, expect.
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

#include "Orvane/geometry/OrvaneScreen.hpp"
#include "Orvane/platform/appkit/Screen.hpp"
#include "desk/hand/InQuotes.hpp"
#include "desk/script/Commands.hpp"
#include "desk/script/Expectation.hpp"
#include "desk/script/Inspectables.hpp"
#include "desk/script/JsonText.hpp"

namespace orvane::desk::script {

namespace {

constexpr double greatestScale = 16;

/// An inspectable and its argument.
struct Look {
  const Inspectable* inspectable = nullptr;
  std::string argument;
};

struct Expected {
  std::string path;
  Look look;
  /// The path of the value within it.
  std::vector<std::string> place;
  std::optional<Json> value;
};

/// Null, with a reported problem, when there is none with that name.
const Inspectable* findInspectable(const ScriptContext& context, const std::string& name,
                                   Arguments& arguments) {
  const Inspectable* const inspectable = context.inspectables.find(name);
  if (inspectable == nullptr) {
    arguments.report("there is no \"" + name + "\" to show, only " + context.inspectables.names());
  }
  return inspectable;
}

Look readLook(ScriptContext& context, Arguments& arguments) {
  Look look{findInspectable(context, arguments.text("THING"), arguments), {}};
  if (look.inspectable != nullptr && !look.inspectable->parameter.empty()) {
    look.argument = arguments.text(look.inspectable->parameter);
  }
  return look;
}

Expected readExpected(ScriptContext& context, Arguments& arguments) {
  Expected expected;
  expected.path = arguments.text("THING.PATH");
  const std::string written(arguments.restAsWritten("VALUE"));
  expected.value = parseJson(written);
  if (!expected.value) {
    arguments.report("VALUE is not JSON: " + written + " (text needs double quotes)");
  }
  std::optional<std::vector<std::string>> parts = parsePath(expected.path);
  if (!parts) {
    arguments.report(inQuotes(expected.path) + " is not a path");
    return expected;
  }
  expected.look.inspectable = findInspectable(context, parts->front(), arguments);
  parts->erase(parts->begin());
  if (expected.look.inspectable != nullptr && !expected.look.inspectable->parameter.empty()) {
    if (parts->empty()) {
      arguments.report(expected.look.inspectable->parameter + " is missing after \"" +
                       expected.path + ".\"");
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
      arguments.report("the scale must be greater than 0 and at most 16");
    }
  }
  return request;
}

Problem show(ScriptContext& context, const Look& look) {
  Json shown;
  if (Problem problem = look.inspectable->look(context, look.argument, shown)) {
    return problem;
  }
  context.output << jsonText(shown) << '\n';
  return std::nullopt;
}

Problem expect(ScriptContext& context, const Expected& expected) {
  Json shown;
  if (Problem problem = expected.look.inspectable->look(context, expected.look.argument, shown)) {
    return problem;
  }
  const std::optional<Json> got = valueAt(*expected.look.inspectable, shown, expected.place);
  if (!got || !isSameJson(*got, *expected.value)) {
    context.expectationFailed(failureText(expected.path, *expected.value, got));
  }
  return std::nullopt;
}

void find(ScriptContext& context, const std::string& identifier) {
  const auto index = OrvaneScreen::orvaneFindScreen(identifier, appkit::Screen::screens());
  context.output << jsonText(Json{{"index", index ? Json(*index) : Json(nullptr)}}) << '\n';
}

Problem picture(ScriptContext& context, const PictureRequest& request) {
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
      "echo", takes(restOfLine("TEXT")),
      [](ScriptContext& context, const std::string& words) { context.output << words << '\n'; });
}

}  // namespace orvane::desk::script
