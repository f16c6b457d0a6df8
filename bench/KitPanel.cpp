// Only rectangles, circles and texts, which every toolkit can draw.
#include "bench/KitPanel.hpp"

#include <string>
#include <vector>

#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"

namespace orvane::bench {

using namespace ui;

namespace {

constexpr int cardColumns = 4;
constexpr int cardRows = 1;
constexpr int settingRows = 6;

struct PlainStyle {
  View operator()(const ButtonConfiguration& configuration, const Environment&) const {
    return configuration.label;
  }
};

struct Card {
  int number;
  bool isSelected;

  View body(const Environment& environment) const {
    const State<bool> isHovered = environment.state("isHovered", false);
    const View picture = RoundedRectangle(6).fill(Color::gray().opacity(0.4)).frame(96, 54);
    const View name = Text("Display " + std::to_string(number)).font(Font::headline());
    const View role =
        Text("External Display").font(Font::subheadline()).foreground(Color::secondary());
    const View surface = RoundedRectangle(12)
                             .fill(Color::primary().opacity(isHovered.value() ? 0.12 : 0.05))
                             .stroke(isSelected ? Color::accent() : Color::tertiary());
    return Button([] {}, VStack(5, {picture, name, role}).frame(140, 120).background(surface))
        .style(PlainStyle{})
        .onHover([isHovered](bool isInside) { isHovered.set(isInside); });
  }
};

View head(int revision) {
  const View icon = RoundedRectangle(11).fill(Fill::systemGradient(Color::accent())).frame(48, 48);
  const View words =
      VStack(3, HorizontalAlignment::leading,
             {Text("Pin to a Display").font(Font::system(18, Weight::bold)),
              Text("Revision " + std::to_string(revision)).foreground(Color::secondary())});
  const View pill = Text("Not Pinned")
                        .font(Font::headline())
                        .padding(Edges::symmetric(13, 8))
                        .background(Capsule().fill(Color::primary().opacity(0.06)));
  return HStack(14, {icon, words, Spacer(), pill});
}

View settingRow(int number) {
  const bool isOn = number % 2 == 0;
  const View track = Capsule().fill(isOn ? Color::accent() : Color::tertiary());
  const View knob = Circle().fill(Color::white()).frame(15, 15).padding(1.5);
  const View toggle =
      ZStack(isOn ? Alignment::trailing() : Alignment::leading(), {track, knob}).frame(34, 18);
  return HStack(8, {Text("Setting " + std::to_string(number)), Spacer(), toggle}).height(24);
}

View button(const std::string& title) {
  return Button([] {}, Text(title)
                           .font(Font::system(15, Weight::semibold))
                           .foreground(Color::white())
                           .maximumWidth()
                           .height(38)
                           .background(RoundedRectangle(8).fill(Color::accent())))
      .style(PlainStyle{});
}

}  // namespace

View KitPanel::body(const Environment& /*environment*/) const {
  std::vector<View> rows{head(revision)};
  for (int row = 0; row < cardRows; ++row) {
    std::vector<View> cards;
    for (int column = 0; column < cardColumns; ++column) {
      const int number = row * cardColumns + column;
      cards.emplace_back(Card{number, number == 1});
    }
    rows.push_back(HStack(12, cards));
  }
  std::vector<View> settings;
  settings.reserve(settingRows);
  for (int number = 0; number < settingRows; ++number) {
    settings.push_back(settingRow(number));
  }
  rows.push_back(VStack(0, settings));
  rows.push_back(HStack(12, {button("Pin"), button("Prevent")}));
  return VStack(10, rows)
      .padding(20)
      .frame(width, height)
      .background(RoundedRectangle(24).fill(Color::windowBackground()));
}

}  // namespace orvane::bench
