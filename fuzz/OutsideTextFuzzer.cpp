// Text that comes from outside: names of displays, identifiers of locales, the Dock's stored edge,
// links, and what is dropped on a list. The first byte says which. Each has an answer, and the
// answer keeps a rule that does not depend on how it was found.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <string>
#include <string_view>

#include "Orvane/base/Require.hpp"
#include "Orvane/geometry/DockUtils.hpp"
#include "Orvane/geometry/OrvaneDisplayNameLocalizer.hpp"
#include "Orvane/model/OrvaneLanguage.hpp"
#include "Orvane/platform/appkit/Workspace.hpp"
#include "desk/machine/Dock.hpp"
#include "desk/machine/MachineScope.hpp"
#include "desk/quartz/Utf8.hpp"
#include "desk/settings/AccessibilityList.hpp"

namespace orvane::desk {
namespace {

void readDisplayName(const std::string& text) {
  const std::string name = OrvaneDisplayNameLocalizer::localizedDisplayName(text, 7, false);
  require(!name.empty() && (text.find(name) != std::string::npos || name == "Display 7"),
          "a display has its own name or its number");
}

void readLocale(Machine& machine, const std::string& text) {
  machine.locale = {.preferredLanguages = {text}, .currentIdentifier = text};
  const OrvaneLanguage language = OrvaneLanguage::systemPreferred({&text, 1}, text);
  const bool mayBeChinese = text.find_first_of("zZ") != std::string::npos &&
                            text.find_first_of("hH") != std::string::npos;
  require(
      language == OrvaneLanguage::english || (language == OrvaneLanguage::chinese && mayBeChinese),
      "only a Chinese identifier is Chinese");
  const std::string name = OrvaneDisplayNameLocalizer::localizedDisplayName("", 7, true);
  require(name == "Display" || name == "内建显示器" || name == "內建顯示器",
          "the built-in display has a name in every locale");
  machine.locale = {};
}

void readOrientation(Machine& machine, const std::string& text) {
  static const std::map<std::string, DockPosition> edges = {{"top", DockPosition::top},
                                                            {"left", DockPosition::left},
                                                            {"right", DockPosition::right},
                                                            {"bottom", DockPosition::bottom}};
  machine.preferences.set(
      {Dock::preferencesDomain, Preferences::User::current, Preferences::Host::any},
      Dock::orientationKey, text);
  DockPosition expected = DockPosition::bottom;
  // Invalid UTF-8 reads as no value, and CFStringGetCString ends a text at its first NUL.
  if (Utf8::isValid(text)) {
    const auto edge = edges.find(text.substr(0, text.find('\0')));
    expected = edge != edges.end() ? edge->second : DockPosition::unknown;
  }
  require(DockUtils::getDockPosition() == expected, "an edge is named exactly");
}

std::string decoded(std::string_view text) {
  std::string result;
  for (std::size_t index = 0; index < text.size(); ++index) {
    if (text[index] == '%') {
      const std::string digits(text.substr(index + 1, 2));
      result += static_cast<char>(std::strtol(digits.c_str(), nullptr, 16));
      index += 2;
    } else {
      result += text[index];
    }
  }
  return result;
}

void readLink(Machine& machine, const std::string& text) {
  require(machine.links.openURL(text) == Links::formsURL(text), "only a URL is opened");
  require(machine.links.openFile(text) == text.starts_with('/'), "only an absolute path is opened");
  require(Links::formsURL(Links::fileURL("/" + text)) &&
              decoded(Links::fileURL("/" + text)) == "file:///" + text,
          "every path has a file URL");
  if (const auto query = appkit::Workspace::percentEncodedForQuery(text)) {
    require(decoded(*query) == text && Links::formsURL("mailto:?subject=" + *query),
            "every text can be a subject");
  }
}

void readDrop(const std::string& text) {
  const std::string name = AccessibilityList::applicationOf(text);
  require(name.empty() || text.find(name + ".app") != std::string::npos,
          "a dropped application has the name of its bundle");
}

}  // namespace
}  // namespace orvane::desk

// NOLINTNEXTLINE(readability-identifier-naming): libFuzzer's own name
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  using namespace orvane::desk;
  if (size == 0) {
    return 0;
  }
  const std::string text(reinterpret_cast<const char*>(bytes) + 1, size - 1);
  const MachineScope scope;
  switch (bytes[0] % 5) {
    case 0:
      readDisplayName(text);
      break;
    case 1:
      readLocale(scope.machine(), text);
      break;
    case 2:
      readOrientation(scope.machine(), text);
      break;
    case 3:
      readLink(scope.machine(), text);
      break;
    default:
      readDrop(text);
      break;
  }
  return 0;
}
