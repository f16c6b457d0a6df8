// The parameters of several commands.
#include "desk/script/Parameter.hpp"

namespace orvane::desk::script {

Parameter<std::string> text(std::string name, std::string usage) {
  usage = usage.empty() ? name : usage;
  return {std::move(usage), [name = std::move(name)](ScriptContext&, Arguments& arguments) {
            return arguments.text(name);
          }};
}

Parameter<std::string> restOfLine(const std::string& usage) {
  return {usage, [](ScriptContext&, Arguments& arguments) { return arguments.restAsText(); }};
}

Parameter<double> coordinate(const std::string& name) {
  return {name,
          [name](ScriptContext&, Arguments& arguments) { return arguments.coordinate(name); }};
}

Parameter<std::uint32_t> displayNumber(const std::string& name) {
  return {name,
          [name](ScriptContext&, Arguments& arguments) { return arguments.displayNumber(name); }};
}

Parameter<CGPoint> point() {
  return {"X Y", [](ScriptContext&, Arguments& arguments) {
            const double x = arguments.coordinate("X");
            return CGPointMake(x, arguments.coordinate("Y"));
          }};
}

Parameter<bool> either(const std::string& usage, std::string_view no, std::string_view yes) {
  return choice<bool>(usage, {{no, false}, {yes, true}});
}

Parameter<bool> onOff() {
  return either("on|off", "off", "on");
}

}  // namespace orvane::desk::script
