// In both languages and in every state all texts of the panels are there in full: none is cut, none
// leaves its panel, none lies on another.
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
  std::function<void(OrvaneModel&)> reach;
};

std::ostream& operator<<(std::ostream& stream, const State& state) {
  return stream << state.name;
}

/// What is read or pressed, without what lies in it. What is in the picker may be scrolled away.
void collectPieces(const ui::SemanticsNode& node, std::vector<ui::SemanticsNode>& pieces) {
  if (node.role == ui::Role::scrollArea) {
    return;
  }
  if (node.children.empty()) {
    pieces.push_back(node);
  }
  for (const ui::SemanticsNode& child : node.children) {
    collectPieces(child, pieces);
  }
}

void expectAllInFull(const ui::SemanticsNode& root, const std::vector<std::string>& drawing) {
  for (const std::string& line : drawing) {
    EXPECT_EQ(line.find("…"), std::string::npos) << line;
  }
  // Where the window's corners are round there is nothing to read, so the edges do as bounds.
  constexpr double margin = 8;
  const ui::Rect bounds = root.frame.inset(margin);
  std::vector<ui::SemanticsNode> pieces;
  collectPieces(root, pieces);
  EXPECT_GT(pieces.size(), 10U);
  for (std::size_t first = 0; first < pieces.size(); ++first) {
    const ui::Rect& frame = pieces[first].frame;
    EXPECT_TRUE(frame.x >= bounds.x && frame.y >= bounds.y && frame.right() <= bounds.right() &&
                frame.bottom() <= bounds.bottom())
        << pieces[first].label << " at " << frame.x << " " << frame.y << " " << frame.width << " "
        << frame.height;
    for (std::size_t second = first + 1; second < pieces.size(); ++second) {
      EXPECT_TRUE(frame.intersection(pieces[second].frame).isEmpty())
          << pieces[first].label << " lies on " << pieces[second].label;
    }
  }
}

class TextFitTest : public PanelFixture, public testing::WithParamInterface<State> {};

TEST_P(TextFitTest, NothingIsCutAndNothingLeavesThePanel) {
  const State& state = GetParam();
  openSettings();
  model().setAppLanguage(state.language);
  state.reach(model());
  machine.advance(2);

  expectAllInFull(tree(state.surface), drawnLines(state.surface));
}

/// A Mac's fonts and symbols are not the desk's: its text 5 % wider, its symbols 20 % taller.
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

class RoomInTheSettings : public PanelFixture,
                          public testing::WithParamInterface<OrvaneLanguage::Value> {};

TEST_P(RoomInTheSettings, DoesForWiderTextAndTallerSymbols) {
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
  // The cards have their margin, and the header its height.
  std::vector<ui::SemanticsNode> pieces;
  collectPieces(host.semantics(), pieces);
  const auto frameOf = [&](const std::string& label) {
    const auto found = std::ranges::find(pieces, label, &ui::SemanticsNode::label);
    EXPECT_NE(found, pieces.end()) << label;
    return found == pieces.end() ? ui::Rect{} : found->frame;
  };
  // Above and below the cards are 10 points, and within them 6.
  constexpr double margin = 10 + 6;
  const ui::Rect close = frameOf(model().localized("Close", "关闭"));
  EXPECT_GE(close.y, 6);
  const double headerHeight = close.center().y * 2;
  EXPECT_GE(frameOf(model().localized("Language", "语言")).y, headerHeight + margin);
  EXPECT_LE(frameOf(model().localized("Contact Support", "联系支持")).bottom(),
            OrvaneSettingsWindow::contentSize.height - margin);
}

INSTANTIATE_TEST_SUITE_P(Languages, RoomInTheSettings,
                         testing::Values(OrvaneLanguage::english, OrvaneLanguage::chinese));

void stay(OrvaneModel& /*model*/) {}
void pin(OrvaneModel& model) {
  model.toggleSelectedDisplayLock();
}
void prevent(OrvaneModel& model) {
  model.toggleHideDockOnAllDisplays();
}
void askForALoginItemOnADiskImage(OrvaneModel& model) {
  desk::Machine::current().bundle.isOnReadOnlyVolume = true;
  model.setLaunchAtLoginEnabled(true);
}

INSTANTIATE_TEST_SUITE_P(
    States, TextFitTest,
    testing::Values(State{"English, at rest", "main", OrvaneLanguage::english, stay},
                    State{"English, pinned", "main", OrvaneLanguage::english, pin},
                    State{"English, preventing", "main", OrvaneLanguage::english, prevent},
                    State{"Chinese, at rest", "main", OrvaneLanguage::chinese, stay},
                    State{"Chinese, pinned", "main", OrvaneLanguage::chinese, pin},
                    State{"Chinese, preventing", "main", OrvaneLanguage::chinese, prevent},
                    State{"English settings", "settings", OrvaneLanguage::english, stay},
                    State{"Chinese settings", "settings", OrvaneLanguage::chinese, stay},
                    State{"English settings on a disk image", "settings", OrvaneLanguage::english,
                          askForALoginItemOnADiskImage},
                    State{"Chinese settings on a disk image", "settings", OrvaneLanguage::chinese,
                          askForALoginItemOnADiskImage}));

}  // namespace
}  // namespace orvane
