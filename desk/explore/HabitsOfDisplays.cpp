// What happens to displays: they come, go, move, swap numbers, share a UUID, have no number.
#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <optional>

#include "desk/explore/Habits.hpp"

namespace orvane::desk::explore {

namespace {

constexpr std::uint32_t mostDisplays = 5;

const Display& anyDisplay(Scene& scene) {
  return scene.lots.oneOf(scene.machine.displays.all());
}

bool overlaps(const CGRect& first, const CGRect& second) {
  return first.origin.x < second.origin.x + second.size.width &&
         second.origin.x < first.origin.x + first.size.width &&
         first.origin.y < second.origin.y + second.size.height &&
         second.origin.y < first.origin.y + first.size.height;
}

std::string text(const CGRect& frame) {
  return decimal(frame.origin.x) + "," + decimal(frame.origin.y) + "," + decimal(frame.size.width) +
         "," + decimal(frame.size.height);
}

/// Beside `anchor`, a little off, with a gap that still or no longer makes them neighbours.
CGRect besides(Scene& scene, const CGRect& anchor, CGSize size) {
  constexpr std::array<double, 8> gaps{0, 0, 0, 0, 0, 1, 2, 3};
  const double gap = scene.lots.oneOf(gaps);
  const bool isAside = scene.lots.chance(600);
  const auto shift = [&](double own, double other) {
    constexpr double shared = 60;
    if (scene.lots.chance(400)) {
      return 0.0;
    }
    return static_cast<double>(scene.lots.between(static_cast<std::int64_t>(shared - own),
                                                  static_cast<std::int64_t>(other - shared)));
  };
  const bool isBefore = scene.lots.chance(400);
  if (isAside) {
    return CGRectMake(
        isBefore ? anchor.origin.x - size.width - gap : anchor.origin.x + anchor.size.width + gap,
        anchor.origin.y + shift(size.height, anchor.size.height), size.width, size.height);
  }
  return CGRectMake(
      anchor.origin.x + shift(size.width, anchor.size.width),
      isBefore ? anchor.origin.y - size.height - gap : anchor.origin.y + anchor.size.height + gap,
      size.width, size.height);
}

/// Where there is room for a display; `number` is the one that moves.
std::optional<CGRect> freePlace(Scene& scene, std::optional<std::uint32_t> number) {
  constexpr std::array<CGSize, 7> sizes{CGSize{1440, 900}, CGSize{1920, 1080}, CGSize{1512, 982},
                                        CGSize{800, 600},  CGSize{2560, 1440}, CGSize{1080, 1920},
                                        CGSize{1000, 1001}};
  std::vector<CGRect> others;
  for (const Display& display : scene.machine.displays.all()) {
    if (display.number != number) {
      others.push_back(display.frame);
    }
  }
  const CGSize size = scene.lots.oneOf(sizes);
  if (others.empty()) {
    return CGRectMake(0, 0, size.width, size.height);
  }
  if (scene.lots.chance(80)) {
    // A mirror.
    return scene.lots.oneOf(others);
  }
  for (int attempt = 0; attempt < 12; ++attempt) {
    const CGRect frame = besides(scene, scene.lots.oneOf(others), size);
    if (std::ranges::none_of(others, [&](const CGRect& other) { return overlaps(frame, other); })) {
      return frame;
    }
  }
  return std::nullopt;
}

std::uint32_t freeNumber(Scene& scene) {
  std::uint32_t number = 1 + static_cast<std::uint32_t>(scene.lots.below(9));
  while (scene.machine.displays.find(number) != nullptr) {
    ++number;
  }
  return number;
}

Lines swapNumbers(Scene& scene) {
  const std::uint32_t first = anyDisplay(scene).number;
  const std::uint32_t second = anyDisplay(scene).number;
  if (first == second) {
    return {};
  }
  const std::string one = std::to_string(first);
  const std::string other = std::to_string(second);
  return {"display together", "display renumber " + one + " 99",
          "display renumber " + other + " " + one, "display renumber 99 " + other, "display done"};
}

}  // namespace

Lines attachDisplay(Scene& scene) {
  constexpr std::array<const char*, 6> names{"Right",       "书房", "Bureau é",
                                             "DELL U2720Q", "  ",   "LG \\\"5K\\\""};
  constexpr std::array<const char*, 6> uuids{"RIGHT", "BUILTIN", "LEFT", "AAAA", "BBBB", "CCCC"};
  const auto frame = freePlace(scene, std::nullopt);
  if (scene.machine.displays.count() >= mostDisplays || !frame) {
    return {};
  }
  std::string line =
      "display attach " + std::to_string(freeNumber(scene)) + " frame=" + text(*frame);
  if (scene.lots.chance(800)) {
    line += std::string(" uuid=") + scene.lots.oneOf(uuids);
  }
  line += std::string(" name=\"") + scene.lots.oneOf(names) + "\"";
  line += scene.lots.chance(100) ? " nonumber" : "";
  line += scene.lots.chance(150) ? " main" : "";
  line += scene.lots.chance(100) ? " builtin" : "";
  return {line};
}

Lines detachDisplay(Scene& scene) {
  if (scene.machine.displays.isEmpty() ||
      (scene.machine.displays.count() == 1 && scene.lots.chance(700))) {
    return {};
  }
  return {"display detach " + std::to_string(anyDisplay(scene).number)};
}

Lines moveDisplay(Scene& scene) {
  if (scene.machine.displays.isEmpty()) {
    return {};
  }
  const std::uint32_t number = anyDisplay(scene).number;
  const auto frame = freePlace(scene, number);
  if (!frame) {
    return {};
  }
  return {"display frame " + std::to_string(number) + " " + text(*frame)};
}

Lines renumberDisplays(Scene& scene) {
  if (scene.machine.displays.isEmpty() || scene.machine.displays.isChanging()) {
    return {};
  }
  if (scene.lots.chance(400)) {
    return swapNumbers(scene);
  }
  return {"display renumber " + std::to_string(anyDisplay(scene).number) + " " +
          std::to_string(freeNumber(scene))};
}

Lines chooseMainDisplay(Scene& scene) {
  if (scene.machine.displays.isEmpty()) {
    return {};
  }
  return {"display main " + std::to_string(anyDisplay(scene).number)};
}

Lines changeDisplaysTogether(Scene& scene) {
  if (scene.machine.displays.isChanging()) {
    return {};
  }
  Lines lines{"display together"};
  std::ranges::move(detachDisplay(scene), std::back_inserter(lines));
  if (lines.size() == 1 || scene.lots.chance(500)) {
    std::ranges::move(attachDisplay(scene), std::back_inserter(lines));
  }
  lines.emplace_back("display done");
  return lines;
}

Lines changeDisplaysUnderEvents(Scene& scene) {
  if (scene.machine.displays.isChanging() || scene.machine.displays.isEmpty()) {
    return {};
  }
  Lines lines{"display together"};
  std::ranges::move(scene.lots.chance(500) ? moveDisplay(scene) : detachDisplay(scene),
                    std::back_inserter(lines));
  std::ranges::move(pressAgainstEdge(scene), std::back_inserter(lines));
  lines.emplace_back("display done");
  return lines;
}

}  // namespace orvane::desk::explore
