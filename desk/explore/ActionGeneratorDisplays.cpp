// Actions on displays, including swapped numbers, shared UUIDs and missing numbers.
#include <algorithm>
#include <array>
#include <iterator>
#include <optional>

#include "desk/explore/ActionGenerator.hpp"

namespace orvane::desk::explore {

namespace {

constexpr std::uint32_t maximumDisplayCount = 5;

const Display& anyDisplay(ActionContext& context) {
  return context.random.oneOf(context.machine.displays.all());
}

bool overlaps(const CGRect& first, const CGRect& second) {
  return first.origin.x < second.origin.x + second.size.width &&
         second.origin.x < first.origin.x + first.size.width &&
         first.origin.y < second.origin.y + second.size.height &&
         second.origin.y < first.origin.y + first.size.height;
}

std::string frameText(const CGRect& frame) {
  return decimal(frame.origin.x) + "," + decimal(frame.origin.y) + "," + decimal(frame.size.width) +
         "," + decimal(frame.size.height);
}

/// A frame next to `anchor`, shifted, with a gap around the limit up to which displays adjoin.
CGRect frameNextTo(ActionContext& context, const CGRect& anchor, CGSize size) {
  constexpr std::array<double, 8> gaps{0, 0, 0, 0, 0, 1, 2, 3};
  const double gap = context.random.oneOf(gaps);
  const bool isBeside = context.random.chance(600);
  const auto shift = [&](double own, double other) {
    constexpr double shared = 60;
    if (context.random.chance(400)) {
      return 0.0;
    }
    return static_cast<double>(context.random.between(static_cast<std::int64_t>(shared - own),
                                                      static_cast<std::int64_t>(other - shared)));
  };
  const bool isBefore = context.random.chance(400);
  if (isBeside) {
    return CGRectMake(
        isBefore ? anchor.origin.x - size.width - gap : anchor.origin.x + anchor.size.width + gap,
        anchor.origin.y + shift(size.height, anchor.size.height), size.width, size.height);
  }
  return CGRectMake(
      anchor.origin.x + shift(size.width, anchor.size.width),
      isBefore ? anchor.origin.y - size.height - gap : anchor.origin.y + anchor.size.height + gap,
      size.width, size.height);
}

/// A frame that overlaps no display but `number`, which moves; sometimes a mirror of another.
std::optional<CGRect> freeFrame(ActionContext& context, std::optional<std::uint32_t> number) {
  constexpr std::array<CGSize, 7> sizes{CGSize{1440, 900}, CGSize{1920, 1080}, CGSize{1512, 982},
                                        CGSize{800, 600},  CGSize{2560, 1440}, CGSize{1080, 1920},
                                        CGSize{1000, 1001}};
  std::vector<CGRect> others;
  for (const Display& display : context.machine.displays.all()) {
    if (display.number != number) {
      others.push_back(display.frame);
    }
  }
  const CGSize size = context.random.oneOf(sizes);
  if (others.empty()) {
    return CGRectMake(0, 0, size.width, size.height);
  }
  if (context.random.chance(80)) {
    return context.random.oneOf(others);
  }
  for (int attempt = 0; attempt < 12; ++attempt) {
    const CGRect frame = frameNextTo(context, context.random.oneOf(others), size);
    if (std::ranges::none_of(others, [&](const CGRect& other) { return overlaps(frame, other); })) {
      return frame;
    }
  }
  return std::nullopt;
}

std::uint32_t freeNumber(ActionContext& context) {
  std::uint32_t number = 1 + static_cast<std::uint32_t>(context.random.below(9));
  while (context.machine.displays.find(number) != nullptr) {
    ++number;
  }
  return number;
}

Lines swapNumbers(ActionContext& context) {
  const std::uint32_t first = anyDisplay(context).number;
  const std::uint32_t second = anyDisplay(context).number;
  if (first == second) {
    return {};
  }
  const std::string one = std::to_string(first);
  const std::string other = std::to_string(second);
  return {"display together", "display renumber " + one + " 99",
          "display renumber " + other + " " + one, "display renumber 99 " + other, "display done"};
}

}  // namespace

Lines attachDisplay(ActionContext& context) {
  constexpr std::array<const char*, 6> names{"Right",       "书房", "Bureau é",
                                             "DELL U2720Q", "  ",   "LG \\\"5K\\\""};
  constexpr std::array<const char*, 6> uuids{"RIGHT", "BUILTIN", "LEFT", "AAAA", "BBBB", "CCCC"};
  const auto frame = freeFrame(context, std::nullopt);
  if (context.machine.displays.count() >= maximumDisplayCount || !frame) {
    return {};
  }
  std::string line =
      "display attach " + std::to_string(freeNumber(context)) + " frame=" + frameText(*frame);
  if (context.random.chance(800)) {
    line += std::string(" uuid=") + context.random.oneOf(uuids);
  }
  line += std::string(" name=\"") + context.random.oneOf(names) + "\"";
  line += context.random.chance(100) ? " nonumber" : "";
  line += context.random.chance(150) ? " main" : "";
  line += context.random.chance(100) ? " builtin" : "";
  return {line};
}

Lines detachDisplay(ActionContext& context) {
  if (context.machine.displays.isEmpty() ||
      (context.machine.displays.count() == 1 && context.random.chance(700))) {
    return {};
  }
  return {"display detach " + std::to_string(anyDisplay(context).number)};
}

Lines moveDisplay(ActionContext& context) {
  if (context.machine.displays.isEmpty()) {
    return {};
  }
  const std::uint32_t number = anyDisplay(context).number;
  const auto frame = freeFrame(context, number);
  if (!frame) {
    return {};
  }
  return {"display frame " + std::to_string(number) + " " + frameText(*frame)};
}

Lines renumberDisplays(ActionContext& context) {
  if (context.machine.displays.isEmpty() || context.machine.displays.isChanging()) {
    return {};
  }
  if (context.random.chance(400)) {
    return swapNumbers(context);
  }
  return {"display renumber " + std::to_string(anyDisplay(context).number) + " " +
          std::to_string(freeNumber(context))};
}

Lines chooseMainDisplay(ActionContext& context) {
  if (context.machine.displays.isEmpty()) {
    return {};
  }
  return {"display main " + std::to_string(anyDisplay(context).number)};
}

Lines changeDisplaysTogether(ActionContext& context) {
  if (context.machine.displays.isChanging()) {
    return {};
  }
  Lines lines{"display together"};
  std::ranges::move(detachDisplay(context), std::back_inserter(lines));
  if (lines.size() == 1 || context.random.chance(500)) {
    std::ranges::move(attachDisplay(context), std::back_inserter(lines));
  }
  lines.emplace_back("display done");
  return lines;
}

Lines changeDisplaysUnderEvents(ActionContext& context) {
  if (context.machine.displays.isChanging() || context.machine.displays.isEmpty()) {
    return {};
  }
  Lines lines{"display together"};
  std::ranges::move(context.random.chance(500) ? moveDisplay(context) : detachDisplay(context),
                    std::back_inserter(lines));
  std::ranges::move(pressAgainstEdge(context), std::back_inserter(lines));
  lines.emplace_back("display done");
  return lines;
}

}  // namespace orvane::desk::explore
