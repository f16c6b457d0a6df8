// In every frame of every animation of the panels, no text overlaps another, and texts and elements
// that have the same place before and after it do not move during it.
#include <algorithm>
#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/panels/PanelFixture.hpp"
#include "tests/panels/TextRun.hpp"

namespace orvane {
namespace {

/// Half a frame of the display.
constexpr double step = 1.0 / 120;
/// Longer than any animation of the panels.
constexpr int stepCount = 84;

bool isSame(const ui::Rect& first, const ui::Rect& second) {
  constexpr double slack = 1e-6;
  return std::abs(first.x - second.x) < slack && std::abs(first.y - second.y) < slack &&
         std::abs(first.width - second.width) < slack &&
         std::abs(first.height - second.height) < slack;
}

/// By more than half a point in both directions.
bool overlap(const ui::Rect& first, const ui::Rect& second) {
  const ui::Rect common = first.intersection(second);
  return common.width > 0.5 && common.height > 0.5;
}

bool isSameText(const TextRun& first, const TextRun& second) {
  return first.line == second.line && first.font == second.font &&
         isSame(first.frame, second.frame);
}

class TextMotionTest : public PanelFixture,
                       public testing::WithParamInterface<OrvaneLanguage::Value> {
 protected:
  struct Frame {
    std::vector<TextRun> texts;
    std::vector<ui::SemanticsNode> elements;
  };

  TextMotionTest() { model().setAppLanguage(GetParam()); }

  [[nodiscard]] Frame capture(const std::string& surface) {
    const auto shown = window(surface);
    if (shown == nullptr) {
      ADD_FAILURE() << "no " << surface;
      return {};
    }
    shown->content->update();
    TextCollector collector(server().resources().shaper);
    const ui::Size size = shown->content->host().size();
    shown->content->host().paint(collector, {0, 0, size.width, size.height});
    return {collector.runs(), elements(surface)};
  }

  static void expectApart(const Frame& frame) {
    constexpr double invisible = 0.02;
    std::vector<TextRun> visible = frame.texts;
    std::erase_if(visible, [](const TextRun& run) { return run.opacity <= invisible; });
    for (std::size_t first = 0; first < visible.size(); ++first) {
      for (std::size_t second = first + 1; second < visible.size(); ++second) {
        EXPECT_FALSE(overlap(visible[first].frame, visible[second].frame))
            << "\"" << visible[first].line << "\", " << visible[first].opacity << ", on \""
            << visible[second].line << "\", " << visible[second].opacity;
      }
    }
    for (std::size_t first = 0; first < frame.elements.size(); ++first) {
      for (std::size_t second = first + 1; second < frame.elements.size(); ++second) {
        const ui::SemanticsNode& one = frame.elements[first];
        const ui::SemanticsNode& other = frame.elements[second];
        if (one.children.empty() && other.children.empty()) {
          EXPECT_FALSE(overlap(one.frame, other.frame)) << one.label << " " << other.label;
        }
      }
    }
  }

  /// That what is equal in the first and the last frame is equal in the one between them.
  static void expectAtRest(const Frame& first, const Frame& between, const Frame& last) {
    for (const TextRun& run : first.texts) {
      const auto isThere = [&run](const TextRun& other) {
        return isSameText(run, other) && run.opacity == other.opacity;
      };
      if (run.opacity == 1 && std::ranges::any_of(last.texts, isThere)) {
        EXPECT_TRUE(std::ranges::any_of(between.texts, isThere)) << "\"" << run.line << "\" moves";
      }
    }
    for (const ui::SemanticsNode& element : first.elements) {
      const auto isThere = [&element](const ui::SemanticsNode& other) {
        return element.id == other.id && isSame(element.frame, other.frame);
      };
      if (std::ranges::any_of(last.elements, isThere)) {
        EXPECT_TRUE(std::ranges::any_of(between.elements, isThere)) << element.label << " moves";
      }
    }
  }

  /// The frame before a change and those of its animation.
  [[nodiscard]] std::vector<Frame> watch(const std::string& surface,
                                         const std::function<void()>& change) {
    std::vector<Frame> frames{capture(surface)};
    change();
    machine.runDue();
    frames.push_back(capture(surface));
    for (int count = 0; count < stepCount; ++count) {
      machine.advance(step);
      frames.push_back(capture(surface));
    }
    EXPECT_FALSE(window(surface)->content->hasFrames()) << "the animation has ended";
    return frames;
  }

  void follow(const std::string& name, const std::function<void()>& change,
              const std::string& surface = mainPanel, bool isReversed = false) {
    const std::vector<Frame> frames = watch(surface, change);
    for (std::size_t index = 1; index < frames.size() && !HasFailure(); ++index) {
      SCOPED_TRACE(name + ", frame " + std::to_string(index - 1));
      expectApart(frames[index]);
      if (!isReversed) {
        expectAtRest(frames.front(), frames[index], frames.back());
      }
    }
  }
  /// For changes that are reversed: they end as they began, but do move.
  void followReversal(const std::string& name, const std::function<void()>& change) {
    follow(name, change, mainPanel, true);
  }

  void pin() { model().toggleSelectedDisplayLock(); }
  void prevent() { model().toggleHideDockOnAllDisplays(); }

  void followModes() {
    follow("pin", [this] { pin(); });
    follow("prevent while pinned", [this] { prevent(); });
    follow("pin while preventing", [this] { pin(); });
    follow("unpin", [this] { pin(); });
    follow("prevent", [this] { prevent(); });
    follow("allow", [this] { prevent(); });
  }
};

TEST_P(TextMotionTest, OfTheModesInEveryOrder) {
  openMain();
  followModes();
}

TEST_P(TextMotionTest, OfModesThatAreReversedDuringTheirAnimation) {
  openMain();
  for (const double moment : {0.03, 0.07, 0.1, 0.11, 0.12, 0.16, 0.21}) {
    SCOPED_TRACE(moment);
    followReversal("pin and back", [&] {
      pin();
      machine.advance(moment);
      pin();
    });
    followReversal("prevent and back", [&] {
      prevent();
      machine.advance(moment);
      prevent();
    });
    pin();
    machine.advance(1);
    followReversal("from pinned to prevented and back", [&] {
      prevent();
      machine.advance(moment);
      pin();
      machine.advance(moment);
      prevent();
      machine.advance(moment);
      pin();
    });
    pin();
    machine.advance(1);
  }
}

TEST_P(TextMotionTest, WithReducedMotionEveryChangeIsImmediate) {
  machine.appearance.reducesMotion = true;
  openMain();
  followModes();
  pin();
  machine.runDue();
  const Frame start = capture(mainPanel);
  machine.advance(1);
  const Frame end = capture(mainPanel);
  EXPECT_TRUE(std::ranges::equal(start.texts, end.texts, isSameText));
}

TEST_P(TextMotionTest, OfTheUnlockAndThePermission) {
  openMain();
  pin();
  machine.advance(1);
  follow("unlock", [this] {
    machine.modifierKeys.hold(kCGEventFlagMaskAlternate);
    machine.mouse.moveTo({100, 100});
  });
  follow("lock", [this] {
    machine.modifierKeys.hold(0);
    machine.mouse.moveTo({110, 110});
  });
  follow("lose the permission", [this] { machine.permission.setTrusted(false); });
  follow("get it back", [this] { machine.permission.setTrusted(true); });
  prevent();
  machine.advance(1);
  follow("lose it while preventing", [this] { machine.permission.setTrusted(false); });
}

TEST_P(TextMotionTest, OfDisplaysThatComeAndGo) {
  const std::vector<std::string> names{"", "Conference Room Television on the Left Wall",
                                       "左侧墙面上的会议室超宽电视显示器", "DELL U2720Q", "显示器"};
  detachAll();
  openMain();
  const auto come = [&](std::uint32_t number) {
    follow("display " + std::to_string(number) + " comes", [&] {
      attach(number, CGRectMake(1440.0 * number, 0, 1440, 900), names[number % names.size()],
             number == 1);
    });
  };
  const auto go = [&](std::uint32_t number) {
    follow("display " + std::to_string(number) + " goes",
           [&] { EXPECT_FALSE(machine.displays.detach(number)); });
  };
  for (std::uint32_t number = 1; number <= 8; ++number) {
    come(number);
  }
  model().selectDisplay("DISPLAY-3");
  pin();
  machine.advance(1);
  // Pinned, the status follows the displays, so that each change is animated.
  for (const std::uint32_t number : {2U, 3U, 8U, 1U}) {
    go(number);
  }
  for (const std::uint32_t number : {3U, 1U, 2U}) {
    come(number);
  }
  follow("another is the main one", [&] { EXPECT_FALSE(machine.displays.setMain(5)); });
  follow("the target goes as another comes", [&] {
    EXPECT_FALSE(machine.displays.beginChanges());
    EXPECT_FALSE(machine.displays.detach(3));
    attach(9, CGRectMake(0, 2000, 1440, 900), "LG", false);
    EXPECT_FALSE(machine.displays.endChanges());
  });
  while (!machine.displays.isEmpty()) {
    go(machine.displays.all().front().number);
  }
}

TEST_P(TextMotionTest, OfTheSelection) {
  openMain();
  follow("the model selects", [this] { model().selectDisplay("DISPLAY-2"); });
  follow("a tap selects", [this] { EXPECT_TRUE(press("LG")); });
  pin();
  machine.advance(1);
  follow("a tap selects while pinned", [this] { EXPECT_TRUE(press("DELL")); });
}

TEST_P(TextMotionTest, OfTheLanguage) {
  openMain();
  const OrvaneLanguage::Value other =
      GetParam() == OrvaneLanguage::english ? OrvaneLanguage::chinese : OrvaneLanguage::english;
  follow("at rest", [&] { model().setAppLanguage(other); });
  follow("as the mode changes", [&] {
    pin();
    machine.advance(0.08);
    model().setAppLanguage(GetParam());
  });
  follow("as it changes on", [&] {
    prevent();
    machine.advance(0.14);
    model().setAppLanguage(other);
  });
}

TEST_P(TextMotionTest, OfTheEntrance) {
  application.reopen();
  follow("the main panel", [] {});
  EXPECT_TRUE(press(model().localized("Settings", "设置")));
  follow(
      "the settings", [] {}, settingsPanel);
}

TEST_P(TextMotionTest, OfTheSettings) {
  openMain();
  EXPECT_TRUE(press(model().localized("Settings", "设置")));
  machine.advance(1);
  const auto change = [this](const std::string& name, const std::function<void()>& make) {
    follow(name, make, settingsPanel);
  };
  change("the pointer comes", [this] { hover("English", settingsPanel); });
  change("another shortcut",
         [this] { model().setTemporaryUnlockModifier(OrvaneModifier::command); });
  machine.bundle.isOnReadOnlyVolume = true;
  change("a misplaced application", [this] { model().setLaunchAtLoginEnabled(true); });
  change("an approval", [this] {
    machine.loginItem.status = appkit::LoginItem::Status::requiresApproval;
    machine.advance(1);
  });
  change("another language", [this] {
    model().setAppLanguage(GetParam() == OrvaneLanguage::english ? OrvaneLanguage::chinese
                                                                 : OrvaneLanguage::english);
  });
  change("no login item", [this] {
    machine.loginItem.status = appkit::LoginItem::Status::notRegistered;
    model().setLaunchAtLoginEnabled(false);
  });
}

INSTANTIATE_TEST_SUITE_P(Languages, TextMotionTest,
                         testing::Values(OrvaneLanguage::english, OrvaneLanguage::chinese));

}  // namespace
}  // namespace orvane
