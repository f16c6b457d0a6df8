// The guide's texts in its three states, and the transitions between them. tests/pictures has the
// look of each state.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <map>
#include <numbers>
#include <regex>
#include <string>
#include <utility>

#include "Orvane/permission/OrvanePermissionGuideView.hpp"
#include "Orvane/ui/draw/TextMeasurer.hpp"
#include "Orvane/ui/host/ViewHost.hpp"
#include "tests/permission/PermissionFlow.hpp"

namespace orvane {
namespace {

class OrvanePermissionGuideViewTest : public PermissionFlow {
 protected:
  [[nodiscard]] static ui::Rect frameOf(const std::string& label) {
    return PermissionFlow::frameOf(label, "guide");
  }
  [[nodiscard]] static bool isDrawn(const std::string& part) { return drawn(part, "guide") > 0; }
  std::string drawing() {
    std::string text;
    for (const std::string& line : drawnLines("guide")) {
      text += line + "\n";
    }
    return text;
  }
  /// The left edge of the drawn text that begins with `text`.
  double leftOf(const std::string& text) {
    const std::string calls = drawing();
    const std::size_t start = calls.find("text \"" + text);
    const std::size_t at = calls.find(" at ", start);
    if (start == std::string::npos || at == std::string::npos) {
      ADD_FAILURE() << text << " is not drawn";
      return 0;
    }
    return std::stod(calls.substr(at + 4));
  }
  /// The y coordinate, in the card.
  double iconAreasMiddle() {
    return tree("guide").children.at(2).frame.bottom() + 22 + 10 + 136.0 / 2;
  }
};

const std::string waiting = "Waiting for permission in System Settings";

TEST_F(OrvanePermissionGuideViewTest, IsInChinese) {
  openGuide();
  store("appLanguage", "chinese");
  guide().close();
  guide().show(nullptr);
  const std::string icon = "  image \"Orvane\"\n";
  const auto saidWith = [](const std::string& shown, const std::string& status) {
    return "group\n"
           "  button \"关闭\"\n"
           "  heading \"下一步\"\n"
           "  text \"在“隐私与安全性”>“辅助功能”中，为 Orvane 打开开关。如果列表里没有 "
           "Orvane，可点“+”添加应用，或将下方图标拖入列表。\"\n" +
           shown + "  text \"" + status + "\"\n  button \"完成\"\n";
  };
  EXPECT_EQ(description(), saidWith(icon, "正在等待你在系统设置中完成授权"));
  machine.advance(11);
  EXPECT_EQ(description(),
            saidWith(icon, "暂未检测到权限，请确认 Orvane 已在“辅助功能”列表中开启"));
  machine.permission.setTrusted(true);
  machine.advance(1.5);
  EXPECT_EQ(description(), saidWith("", "权限已开启"));
}

TEST_F(OrvanePermissionGuideViewTest, AnotherLanguageIsShownAtTheNextPoll) {
  openGuide();
  machine.advance(20);
  EXPECT_TRUE(element("Done", "guide"));
  store("appLanguage", "chinese");
  machine.advance(1);
  EXPECT_FALSE(element("Done", "guide"));
  EXPECT_TRUE(element("完成", "guide"));
}

TEST_F(OrvanePermissionGuideViewTest, OneStatusFadesIntoTheOtherAndIsNeverClipped) {
  openGuide();
  const double before = leftOf(waiting);
  machine.advance(11);
  // First the old line fades in place, then the new one appears; never are both drawn.
  const std::string newLine = "Permission not detected yet.";
  bool isOldSeen = false;
  bool isNewSeen = false;
  for (int frame = 0; frame < 30; ++frame) {
    machine.advance(1.0 / 60);
    const std::string calls = drawing();
    const bool hasOld = calls.find(waiting) != std::string::npos;
    const bool hasNew = calls.find(newLine) != std::string::npos;
    EXPECT_FALSE(hasOld && hasNew) << calls;
    EXPECT_EQ(calls.find("clip"), calls.rfind("clip")) << "only the whole drawing is clipped\n"
                                                       << calls;
    if (hasOld) {
      EXPECT_NEAR(leftOf(waiting), before, 0.5) << calls;
    }
    isOldSeen = isOldSeen || hasOld;
    isNewSeen = isNewSeen || hasNew;
  }
  EXPECT_TRUE(isOldSeen && isNewSeen);
  machine.advance(2);
  EXPECT_FALSE(isDrawn(waiting));
}

TEST_F(OrvanePermissionGuideViewTest, OnSuccessTheCheckMarkReplacesArrowAndIcon) {
  openGuide();
  const ui::Rect button = frameOf("Done");
  EXPECT_TRUE(isDrawn("arrow.down"));
  EXPECT_TRUE(isDrawn("AppIcon"));
  machine.permission.setTrusted(true);
  machine.advance(2.4);
  ASSERT_TRUE(isGuideVisible());
  EXPECT_EQ(description(),
            "group\n"
            "  button \"Close\"\n"
            "  heading \"Next Step\"\n"
            "  text \"In Privacy & Security > Accessibility, turn on Orvane. If Orvane is not "
            "listed, click \"+\" to add it, or drag the icon below into the list.\"\n"
            "  text \"Permission Enabled\"\n"
            "  button \"Done\"\n");
  EXPECT_FALSE(isDrawn("arrow.down"));
  EXPECT_FALSE(isDrawn("AppIcon"));
  EXPECT_TRUE(isDrawn("checkmark.circle.fill"));
  EXPECT_TRUE(frameOf("Done") == button) << "the card keeps its layout";
}

TEST_F(OrvanePermissionGuideViewTest, TheCheckMarkGrowsInPlaceAlongACriticallyDampedSpring) {
  openGuide();
  machine.permission.setTrusted(true);
  machine.advance(1);
  const std::regex mark(
      R"(opacity (\S+)\n\s+save\n\s+transform scale (\S+) translate (\S+) (\S+)\n)"
      R"(\s+symbol checkmark\.circle\.fill \S+ rgba\([^)]*\) \((\S+) (\S+) (\S+) (\S+)\)\n)");
  double seconds = 0;
  for (const double step : {0.0625, 0.125, 0.1875}) {
    machine.advance(step);
    seconds += step;
    // A response of half a second is a natural frequency of 2 pi / 0.5; with a damping fraction of
    // 1 the rest of the way is (1 + frequency * time) * exp(-frequency * time).
    const double phase = 2 * std::numbers::pi / 0.5 * seconds;
    const double fraction = 1 - (1 + phase) * std::exp(-phase);
    const std::string calls = drawing();
    std::smatch match;
    ASSERT_TRUE(std::regex_search(calls, match, mark)) << calls;
    const auto number = [&](std::size_t index) { return std::stod(match[index]); };
    // The recorded drawing has three decimals.
    EXPECT_NEAR(number(1), fraction, 0.001) << "the opacity after " << seconds;
    EXPECT_NEAR(number(2), fraction, 0.001) << "the scale after " << seconds;
    EXPECT_NEAR(number(2) * (number(5) + number(7) / 2) + number(3), 180, 0.2);
    EXPECT_NEAR(number(2) * (number(6) + number(8) / 2) + number(4), iconAreasMiddle(), 0.2);
  }
}

TEST_F(OrvanePermissionGuideViewTest, TheIconFadesInPlace) {
  openGuide();
  const auto placeOfIcon = [this] {
    ui::Point place{-1, -1};
    const std::string calls = drawing();
    const char* const call = std::strstr(calls.c_str(), "image AppIcon (");
    EXPECT_TRUE(call != nullptr &&
                std::sscanf(call, "image AppIcon (%lf %lf", &place.x, &place.y) == 2);
    return place;
  };
  const ui::Point before = placeOfIcon();
  machine.permission.setTrusted(true);
  machine.advance(1.25);
  // At rest it is aligned to whole pixels.
  EXPECT_NEAR(placeOfIcon().x, before.x, 0.5);
  EXPECT_NEAR(placeOfIcon().y, before.y, 0.5);
}

TEST_F(OrvanePermissionGuideViewTest, WithReducedMotionTheCheckMarkAppearsAtOnce) {
  machine.appearance.reducesMotion = true;
  openGuide();
  machine.permission.setTrusted(true);
  machine.advance(1);
  EXPECT_FALSE(window("guide")->content->hasFrames());
  EXPECT_FALSE(isDrawn("arrow.down"));
}

/// Notes the smallest width that each text was given.
class WidthRecorder : public ui::TextMeasurer {
 public:
  ui::TextLayout layout(const std::string& text, const ui::Font& font, double maximumWidth,
                        ui::LineLimit /*limit*/) override {
    const auto [entry, isNew] = widths.try_emplace(text, maximumWidth);
    entry->second = std::min(entry->second, maximumWidth);
    return {{{text, 10}}, font.size, font.size, false};
  }

  std::map<std::string, double> widths;
};

TEST_F(OrvanePermissionGuideViewTest, InstructionAndStatusKeepTheirDistancesFromTheEdges) {
  WidthRecorder recorder;
  ui::HostPlatform platform;
  platform.text = &recorder;
  ui::ViewHost host(std::move(platform));
  host.setSize({OrvanePermissionGuideView::width, OrvanePermissionGuideView::height});
  for (const auto state : {PermissionGuideState::checking, PermissionGuideState::timeout,
                           PermissionGuideState::success}) {
    host.setRoot([state](const ui::Environment& /*environment*/) -> ui::View {
      return OrvanePermissionGuideView{.state = state, .onClose = [] {}};
    });
    host.layoutIfNeeded();
  }
  for (const auto& [beginning, distance] : {std::pair{"In Privacy", 16},
                                            {"Waiting", 22},
                                            {"Permission not", 22},
                                            {"Permission E", 22}}) {
    const auto entry = recorder.widths.lower_bound(beginning);
    ASSERT_TRUE(entry != recorder.widths.end() && entry->first.starts_with(beginning));
    EXPECT_NEAR(entry->second, 360 - 2 * distance, 1e-6) << beginning;
  }
}

}  // namespace
}  // namespace orvane
