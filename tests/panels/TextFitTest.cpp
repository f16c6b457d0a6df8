// In both languages and in every state, no text of the panels is truncated, leaves its panel or
// overlaps another.
#include <algorithm>
#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Orvane/panels/settings/OrvaneSettingsView.hpp"
#include "Orvane/ui/host/ViewHost.hpp"
#include "Orvane/windows/OrvaneSettingsWindow.hpp"
#include "desk/canvas/PangoTextMeasurer.hpp"
#include "tests/panels/PanelFixture.hpp"
#include "tests/support/RecordingCanvas.hpp"

namespace orvane {
namespace {

struct State {
  std::string name;
  std::string surface;
  OrvaneLanguage::Value language;
  std::function<void(OrvaneModel&)> enter;
};

std::ostream& operator<<(std::ostream& stream, const State& state) {
  return stream << state.name;
}

/// The leaves of the tree, except in scroll areas, where they may be out of sight.
void collectLeaves(const ui::SemanticsNode& node, std::vector<ui::SemanticsNode>& leaves) {
  if (node.role == ui::Role::scrollArea) {
    return;
  }
  if (node.children.empty()) {
    leaves.push_back(node);
  }
  for (const ui::SemanticsNode& child : node.children) {
    collectLeaves(child, leaves);
  }
}

void expectAllInFull(const ui::SemanticsNode& root, const std::vector<std::string>& drawing) {
  for (const std::string& line : drawing) {
    EXPECT_EQ(line.find("…"), std::string::npos) << line;
  }
  // The rounded corners do not matter, as no text is near them.
  constexpr double margin = 8;
  const ui::Rect bounds = root.frame.inset(margin);
  std::vector<ui::SemanticsNode> leaves;
  collectLeaves(root, leaves);
  EXPECT_GT(leaves.size(), 10U);
  for (std::size_t first = 0; first < leaves.size(); ++first) {
    const ui::Rect& frame = leaves[first].frame;
    EXPECT_TRUE(frame.x >= bounds.x && frame.y >= bounds.y && frame.right() <= bounds.right() &&
                frame.bottom() <= bounds.bottom())
        << leaves[first].label << " at " << frame.x << " " << frame.y << " " << frame.width << " "
        << frame.height;
    for (std::size_t second = first + 1; second < leaves.size(); ++second) {
      EXPECT_TRUE(frame.intersection(leaves[second].frame).isEmpty())
          << leaves[first].label << " overlaps " << leaves[second].label;
    }
  }
}

class TextFitTest : public PanelFixture, public testing::WithParamInterface<State> {};

TEST_P(TextFitTest, NoTextIsTruncatedOrLeavesThePanel) {
  const State& state = GetParam();
  openSettings();
  model().setAppLanguage(state.language);
  state.enter(model());
  machine.advance(2);

  expectAllInFull(tree(state.surface), drawnLines(state.surface));
}

/// Text 5 % wider than on the desk, as with the fonts of a Mac, whose symbols are 20 % taller.
class WiderText : public ui::TextMeasurer {
 public:
  ui::TextLayout layout(const std::string& text, const ui::Font& font, double maximumWidth,
                        ui::LineLimit limit) override {
    ui::TextLayout layout = measurer_.layout(text, font, maximumWidth / factor, limit);
    for (ui::TextLine& line : layout.lines) {
      line.width *= factor;
    }
    return layout;
  }

 private:
  static constexpr double factor = 1.05;
  desk::PangoTextMeasurer measurer_;
};

class SettingsRoomTest : public PanelFixture,
                         public testing::WithParamInterface<OrvaneLanguage::Value> {};

TEST_P(SettingsRoomTest, SufficesForWiderTextAndTallerSymbols) {
  openSettings();
  model().setAppLanguage(GetParam());
  WiderText text;
  ui::HostPlatform platform;
  platform.text = &text;
  const ui::ImageSource images = server().resources().imageSource();
  platform.images = {images.imageSize, [&](const std::string& name, const ui::Font& font) {
                       std::optional<ui::Size> size = images.symbolSize(name, font);
                       size->height *= 1.2;
                       return size;
                     }};
  ui::ViewHost host(std::move(platform));
  host.setSize({OrvaneSettingsWindow::contentSize.width, OrvaneSettingsWindow::contentSize.height});
  host.setRoot([this](const ui::Environment&) {
    return ui::View(OrvaneSettingsView{.model = &model(), .onClose = {}});
  });
  host.tick(0);
  host.tick(1);
  ui::RecordingCanvas canvas;
  host.paint(canvas, {0, 0, OrvaneSettingsWindow::contentSize.width,
                      OrvaneSettingsWindow::contentSize.height});
  expectAllInFull(host.semantics(), canvas.lines());
  std::vector<ui::SemanticsNode> leaves;
  collectLeaves(host.semantics(), leaves);
  const auto frameOf = [&](const std::string& label) {
    const auto found = std::ranges::find(leaves, label, &ui::SemanticsNode::label);
    EXPECT_NE(found, leaves.end()) << label;
    return found == leaves.end() ? ui::Rect{} : found->frame;
  };
  // 10 points around the cards and 6 in them.
  constexpr double margin = 10 + 6;
  const ui::Rect close = frameOf(model().localized("Close", "关闭"));
  EXPECT_GE(close.y, 6);
  const double headerHeight = close.center().y * 2;
  EXPECT_GE(frameOf(model().localized("Language", "语言")).y, headerHeight + margin);
  EXPECT_LE(frameOf(model().localized("Contact Support", "联系支持")).bottom(),
            OrvaneSettingsWindow::contentSize.height - margin);
}

INSTANTIATE_TEST_SUITE_P(Languages, SettingsRoomTest,
                         testing::Values(OrvaneLanguage::english, OrvaneLanguage::chinese));

void doNothing(OrvaneModel& /*model*/) {}
void pin(OrvaneModel& model) {
  model.toggleSelectedDisplayLock();
}
void prevent(OrvaneModel& model) {
  model.toggleHideDockOnAllDisplays();
}
void requestLoginItemOnDiskImage(OrvaneModel& model) {
  desk::Machine::current().bundle.isOnReadOnlyVolume = true;
  model.setLaunchAtLoginEnabled(true);
}

INSTANTIATE_TEST_SUITE_P(
    States, TextFitTest,
    testing::Values(State{"English, at rest", "main", OrvaneLanguage::english, doNothing},
                    State{"English, pinned", "main", OrvaneLanguage::english, pin},
                    State{"English, preventing", "main", OrvaneLanguage::english, prevent},
                    State{"Chinese, at rest", "main", OrvaneLanguage::chinese, doNothing},
                    State{"Chinese, pinned", "main", OrvaneLanguage::chinese, pin},
                    State{"Chinese, preventing", "main", OrvaneLanguage::chinese, prevent},
                    State{"English settings", "settings", OrvaneLanguage::english, doNothing},
                    State{"Chinese settings", "settings", OrvaneLanguage::chinese, doNothing},
                    State{"English settings on a disk image", "settings", OrvaneLanguage::english,
                          requestLoginItemOnDiskImage},
                    State{"Chinese settings on a disk image", "settings", OrvaneLanguage::chinese,
                          requestLoginItemOnDiskImage}));

}  // namespace
}  // namespace orvane
