// The panel is a column of groups of rows.
#include "showroom/hardware/HardwarePanel.hpp"

#include <utility>

#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "showroom/hardware/HardwareButtonStyle.hpp"
#include "showroom/hardware/HardwareChoice.hpp"
#include "showroom/hardware/HardwareSwitch.hpp"

namespace orvane::showroom {

using namespace ui;

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

View smallButton(const std::string& title, const std::string& label, std::function<void()> action) {
  return Button(std::move(action), Text(title).lineLimit(1))
      .style(HardwareButtonStyle{})
      .focusRing(Shape::rounded(5))
      .accessibilityLabel(label);
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
  Hardware* const target = hardware;
  const std::uint32_t number = display.number;
  const View names = VStack(1, HorizontalAlignment::leading,
                            {Text(display.name).lineLimit(1),
                             Text(display.isMain ? display.size + " · main" : display.size)
                                 .font(smallFont)
                                 .foreground(secondaryColor())
                                 .lineLimit(1)});
  return HStack(6, {names, Spacer(),
                    display.isMain ? View()
                                   : smallButton("Make Main", "Make " + display.name + " main",
                                                 [target, number] { target->makeMain(number); }),
                    smallButton("Detach", "Detach " + display.name,
                                [target, number] { target->detachDisplay(number); })})
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
                            smallButton("Attach a Display", "Attach a display",
                                        [target = hardware] { target->attachDisplay(); })
                                .disabled(!content.canAttachDisplay)})
                     .height(32)
                     .id("attach"));
  return Group{"Displays", rows};
}

View HardwarePanel::dock() const {
  Hardware* const target = hardware;
  return Group{"Dock",
               {HardwareChoice{"Edge",
                               {"Left", "Bottom", "Right"},
                               content.edge == desk::DockEdge::left     ? 0U
                               : content.edge == desk::DockEdge::bottom ? 1U
                                                                        : 2U,
                               [target](std::size_t index) {
                                 target->setEdge(index == 0   ? desk::DockEdge::left
                                                 : index == 1 ? desk::DockEdge::bottom
                                                              : desk::DockEdge::right);
                               }},
                HardwareSwitch{"Hide the Dock automatically", content.autoHides,
                               [target](bool isOn) { target->setAutoHides(isOn); }}}};
}

View HardwarePanel::mac() const {
  Hardware* const target = hardware;
  std::vector<std::string> languages;
  for (const LanguageList& list : Hardware::languageLists()) {
    languages.emplace_back(list.title);
  }
  return Group{
      "Mac",
      {HardwareSwitch{"Accessibility permission", content.isTrusted,
                      [target](bool isOn) { target->setTrusted(isOn); }},
       HardwareChoice{"Appearance",
                      {"Light", "Dark"},
                      content.isDark ? 1U : 0U,
                      [target](std::size_t index) { target->setDark(index == 1); }},
       HardwareChoice{"Wallpaper",
                      {"Default", "White", "Black", "Busy"},
                      static_cast<std::size_t>(content.wallpaper),
                      [target](std::size_t index) {
                        target->setWallpaper(static_cast<desk::Appearance::Wallpaper>(index));
                      }},
       HardwareChoice{"Language", languages, content.languageList,
                      [target](std::size_t index) { target->setLanguageList(index); }}}};
}

View HardwarePanel::application() const {
  Hardware* const target = hardware;
  const View buttons =
      content.isRunning
          ? View(HStack(
                6, {smallButton("Quit", "Quit Orvane", [target] { target->terminate(); }),
                    smallButton("Open Again", "Open Orvane again", [target] { target->reopen(); }),
                    smallButton("Crash", "Crash Orvane", [target] { target->crash(); })}))
          : smallButton("Launch", "Launch Orvane", [target] { target->launch(); });
  return Group{"Orvane",
               {HStack(6, {Text("Process"), Spacer(), buttons}).height(32),
                HardwareSwitch{"Show trigger zones", content.showsZones,
                               [target](bool isOn) { target->setShowsZones(isOn); }}}};
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
