// The panel is a column of groups of rows.
#include "showroom/hardware/HardwarePanel.hpp"

#include <algorithm>
#include <array>

#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "showroom/desktop/StandardDisplays.hpp"
#include "showroom/hardware/HardwareControls.hpp"

namespace orvane::showroom {

using namespace ui;
using desk::Dock;
using desk::DockEdge;
using desk::Machine;

namespace {

constexpr double margin = 14;
constexpr Font rowFont = Font::system(12);
constexpr Font smallFont = Font::system(11);

/// The colour of secondary text, with a contrast of more than 4.5 to 1 in both appearances.
Color secondaryColor() {
  return Color::primary().opacity(0.75);
}

/// A heading, and rows on a plate with hairlines between them.
struct Group {
  std::string title;
  std::vector<View> rows;

  View body(const Environment& environment) const {
    std::vector<View> lines;
    for (const View& row : rows) {
      if (!lines.empty()) {
        lines.push_back(Rectangle().fill(Color::tertiary().opacity(0.5)).height(1));
      }
      lines.push_back(row);
    }
    const Color plate =
        environment.isDark() ? Color::white().opacity(0.06) : Color::white().opacity(0.75);
    const Color rim =
        environment.isDark() ? Color::white().opacity(0.07) : Color::black().opacity(0.07);
    return VStack(5, HorizontalAlignment::leading,
                  {Text(title)
                       .font(Font::system(11, Weight::semibold))
                       .foreground(secondaryColor())
                       .padding({.leading = 2})
                       .accessibilityRole(Role::heading),
                   VStack(0, HorizontalAlignment::leading, lines)
                       .font(rowFont)
                       .padding(Edges::symmetric(10, 1))
                       .maximumWidth(infinity, Alignment::leading())
                       .background(RoundedRectangle(8).fill(plate).strokeBorder(rim, 0.5))});
  }
};

/// A handler that changes the machine; it passes on the value that it receives.
template <typename Change>
auto changing(Hardware* hardware, const Change& change) {
  return [hardware, change](const auto&... value) {
    hardware->change([&](Machine& machine) { change(machine, value...); });
  };
}

View counterView(const HardwareCounter& counter) {
  return VStack(1, HorizontalAlignment::leading,
                {Text(counter.label).font(smallFont).foreground(secondaryColor()).lineLimit(1),
                 Text(counter.value).font(Font::system(13, Weight::semibold)).lineLimit(1)})
      .maximumWidth(infinity, Alignment::leading())
      .height(40);
}

}  // namespace

View HardwarePanel::displayRow(const HardwareDisplay& display) const {
  const std::uint32_t number = display.number;
  const View names = VStack(1, HorizontalAlignment::leading,
                            {Text(display.name).lineLimit(1),
                             Text(display.isMain ? display.size + " · main" : display.size)
                                 .font(smallFont)
                                 .foreground(secondaryColor())
                                 .lineLimit(1)});
  return HStack(6,
                {names, Spacer(),
                 display.isMain ? View()
                                : hardwareButton("Make Main", "Make " + display.name + " main",
                                                 changing(hardware,
                                                          [number](Machine& machine) {
                                                            (void)machine.displays.setMain(number);
                                                          })),
                 hardwareButton("Detach", "Detach " + display.name,
                                changing(hardware,
                                         [number](Machine& machine) {
                                           (void)machine.displays.detach(number);
                                         }))})
      .height(38)
      .id("display " + std::to_string(number));
}

View HardwarePanel::displays() const {
  std::vector<View> rows;
  for (const HardwareDisplay& display : content.displays) {
    rows.push_back(displayRow(display));
  }
  rows.push_back(HStack(6, {Text(content.displays.empty() ? "No display is attached" : "")
                                .foreground(secondaryColor())
                                .lineLimit(1),
                            Spacer(),
                            hardwareButton("Attach a Display", "Attach a display",
                                           changing(hardware, attachNextStandardDisplay))
                                .disabled(!content.canAttachDisplay)})
                     .height(32)
                     .id("attach"));
  return Group{"Displays", rows};
}

View HardwarePanel::dock() const {
  constexpr std::array edges{DockEdge::left, DockEdge::bottom, DockEdge::right};
  const auto setEdge = [edges](Machine& machine, std::size_t index) {
    Dock::store(machine.preferences, Dock::orientationKey, std::string(nameOf(edges.at(index))));
  };
  const auto setAutoHides = [](Machine& machine, bool hides) {
    Dock::store(machine.preferences, Dock::autoHideKey, hides);
  };
  const auto place = std::ranges::find(edges, content.edge) - edges.begin();
  return Group{"Dock",
               {hardwareChoice("Edge", {"Left", "Bottom", "Right"}, static_cast<std::size_t>(place),
                               changing(hardware, setEdge)),
                hardwareSwitch("Hide the Dock automatically", content.autoHides,
                               changing(hardware, setAutoHides))}};
}

View HardwarePanel::mac() const {
  std::vector<std::string> languages;
  for (const HardwareLanguages& choice : hardwareLanguages()) {
    languages.emplace_back(choice.title);
  }
  const auto setTrusted = [](Machine& machine, bool isOn) { machine.permission.setTrusted(isOn); };
  const auto setDark = [](Machine& machine, std::size_t index) {
    machine.appearance.isDark = index == 1;
  };
  const auto setWallpaper = [](Machine& machine, std::size_t index) {
    machine.appearance.wallpaper = static_cast<desk::Appearance::Wallpaper>(index);
  };
  const auto setLanguages = [](Machine& machine, std::size_t index) {
    machine.locale = hardwareLanguages()[index].locale;
  };
  return Group{
      "Mac",
      {hardwareSwitch("Accessibility permission", content.isTrusted,
                      changing(hardware, setTrusted)),
       hardwareChoice("Appearance", {"Light", "Dark"}, content.isDark ? 1U : 0U,
                      changing(hardware, setDark)),
       hardwareChoice("Wallpaper", {"Default", "White", "Black", "Busy"},
                      static_cast<std::size_t>(content.wallpaper),
                      changing(hardware, setWallpaper)),
       hardwareChoice("Language", languages, content.languages, changing(hardware, setLanguages))}};
}

View HardwarePanel::application() const {
  const auto button = [&](const char* title, const std::string& label,
                          void (desk::ApplicationHost::*act)()) {
    return hardwareButton(title, label, changing(hardware, [target = hardware, act](Machine&) {
                            (target->application.*act)();
                          }));
  };
  using desk::ApplicationHost;
  const View buttons =
      content.isRunning
          ? View(HStack(6, {button("Quit", "Quit Orvane", &ApplicationHost::terminate),
                            button("Open Again", "Open Orvane again", &ApplicationHost::reopen),
                            button("Crash", "Crash Orvane", &ApplicationHost::crash)}))
          : button("Launch", "Launch Orvane", &ApplicationHost::launch);
  return Group{"Orvane",
               {HStack(6, {Text("Process"), Spacer(), buttons}).height(32),
                hardwareSwitch("Show trigger zones", content.showsZones,
                               [target = hardware](bool isOn) { target->showsZones = isOn; })}};
}

View HardwarePanel::counters() const {
  std::vector<View> rows;
  for (std::size_t index = 0; index + 1 < content.counters.size(); index += 2) {
    rows.push_back(HStack(
        8, {counterView(content.counters[index]), counterView(content.counters[index + 1])}));
  }
  return Group{"Counters", rows};
}

View HardwarePanel::messages() const {
  const auto line = [](const std::string& text) {
    return when(!text.empty(), [&] {
      return Text(text).font(smallFont).foreground(secondaryColor()).lineLimit(2);
    });
  };
  return VStack(6, HorizontalAlignment::leading, {line(content.message), line(content.hint)})
      .padding(Edges::horizontal(2));
}

View HardwarePanel::body(const Environment& environment) const {
  const Color line =
      environment.isDark() ? Color::white().opacity(0.12) : Color::black().opacity(0.12);
  return VStack(9, HorizontalAlignment::leading,
                {displays(), dock(), mac(), application(), counters(), messages()})
      .padding(margin)
      .frame({.maximumWidth = infinity,
              .maximumHeight = infinity,
              .alignment = Alignment::topLeading()})
      .background(Rectangle().fill(Color::windowBackground()))
      .overlay(Rectangle().fill(line).width(1), Alignment::leading());
}

}  // namespace orvane::showroom
