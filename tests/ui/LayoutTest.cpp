// Layout with the synthetic font at size 10: a character is 5 wide and 10 high.
#include <algorithm>

#include <gtest/gtest.h>

#include "Orvane/ui/views/Image.hpp"
#include "Orvane/ui/views/ScrollView.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "tests/ui/TestHost.hpp"

namespace orvane::ui {
namespace {

std::string framesIn(const View& view, double width, double height) {
  TestHost test({width, height});
  test.show(view.font(Font::system(10)));
  return test.frames();
}

Size ideal(const View& view) {
  TestHost test;
  test.show(view.font(Font::system(10)));
  return test.host->intrinsicSize();
}

TEST(LayoutTest, ARowPlacesItsChildrenSideBySideInTheMiddleOfTheHost) {
  TestHost test({100, 20});
  test.show(HStack(8, {Text("a"), Text("bb")}).font(Font::system(10)));
  EXPECT_EQ(test.frames(), "a(38.5 5 5 10) bb(51.5 5 10 10)");
  test.host->setSize({23, 20});
  test.host->layoutIfNeeded();
  EXPECT_EQ(test.frames(), "a(0 5 5 10) bb(13 5 10 10)");
}

TEST(LayoutTest, ARowOfItsIdealWidthTruncatesNoText) {
  // Sizes and spacings whose sums are rounded.
  for (int step = 0; step < 200; ++step) {
    const double size = 9 + step * 0.07;
    const View row = HStack(0.1 * step, {Text("ab"), Text("cdefg"), Text("h")})
                         .font(Font::system(size))
                         .lineLimit(1);
    TestHost test;
    test.show(row.padding(3.3));
    test.host->setSize(test.host->intrinsicSize());
    test.host->layoutIfNeeded();
    EXPECT_FALSE(test.draws("…")) << size;
  }
}

TEST(LayoutTest, AColumnAlignsItsChildrenAcross) {
  const std::vector<View> children{Text("a"), Text("bbb")};
  EXPECT_EQ(framesIn(VStack(2, HorizontalAlignment::leading, children), 15, 22),
            "a(0 0 5 10) bbb(0 12 15 10)");
  EXPECT_EQ(framesIn(VStack(2, HorizontalAlignment::center, children), 15, 22),
            "a(5 0 5 10) bbb(0 12 15 10)");
  EXPECT_EQ(framesIn(VStack(2, HorizontalAlignment::trailing, children), 15, 22),
            "a(10 0 5 10) bbb(0 12 15 10)");
}

// A measurer with taller lines for other scripts than Latin.
class TallScript : public TextMeasurer {
 public:
  TextLayout layout(const std::string& text, const Font& font, double maximumWidth,
                    LineLimit limit) override {
    TextLayout layout = latin_.layout(text, font, maximumWidth, limit);
    const bool isTall = std::ranges::any_of(text, [](unsigned char byte) { return byte > 0x7F; });
    layout.ascent += isTall ? 3 : 0;
    layout.lineHeight += isTall ? 5 : 0;
    return layout;
  }

 private:
  SyntheticTextMeasurer latin_;
};

TEST(LayoutTest, LinesOfAFixedHeightHaveTheBaselinesOfLatinOnes) {
  const auto drawing = [](const std::string& text, const View& view) {
    TallScript measurer;
    HostPlatform platform;
    platform.text = &measurer;
    ViewHost host(std::move(platform));
    host.setSize({100, 48});
    host.setRoot([&](const Environment&) {
      return view.font(Font::system(10)).frame(100, 48, Alignment::topLeading());
    });
    host.layoutIfNeeded();
    RecordingCanvas canvas;
    host.paint(canvas, {0, 0, 100, 48});
    std::vector<std::string> baselines;
    for (const std::string& line : canvas.lines()) {
      const std::size_t place = line.find(" at 0 ");
      if (place != std::string::npos) {
        baselines.push_back(line.substr(place));
      }
    }
    EXPECT_FALSE(baselines.empty()) << text;
    return baselines;
  };
  const auto baselines = [&](const std::string& text) {
    return drawing(text, Text(text).lineHeight(14));
  };
  // 10 points of font, 7.5 of them above the baseline, in the middle of 14; on whole points.
  EXPECT_EQ(baselines("a\nb"), (std::vector<std::string>{" at 0 10", " at 0 24"}));
  EXPECT_EQ(baselines("中\nb"), baselines("a\nb"));
  EXPECT_EQ(drawing("中", Text("中").lineHeight(0)), drawing("中", Text("中")));
  EXPECT_NE(drawing("中", Text("中")), drawing("a", Text("a")))
      << "without a height they depend on the script";
}

TEST(LayoutTest, SpacersPushTheirNeighboursApart) {
  EXPECT_EQ(framesIn(HStack(0, {Text("a"), Spacer(), Text("b")}), 100, 10),
            "a(0 0 5 10) b(95 0 5 10)");
  EXPECT_EQ(framesIn(VStack(0, {Spacer(), Text("a"), Spacer()}), 5, 90), "a(0 40 5 10)");
  EXPECT_EQ(framesIn(HStack(0, {Text("a"), Spacer(20), Text("b")}).fixedSize(), 30, 10),
            "a(0 0 5 10) b(25 0 5 10)");
}

TEST(LayoutTest, AHeaderRowWrapsWordByWord) {
  // At every width: the rigid label keeps its room, then the text wraps, and at last both break.
  const View header = HStack(8, {Text("aaaa bbbb"), Spacer(), Text("ok")});
  const View tall = header.frame({.maximumHeight = infinity, .alignment = Alignment::top()});
  const std::vector<std::pair<double, std::string>> expected{
      {100, "aaaa bbbb(0 0 45 10) ok(90 0 10 10)"}, {80, "aaaa bbbb(0 0 45 10) ok(70 0 10 10)"},
      {71, "aaaa bbbb(0 0 45 10) ok(61 0 10 10)"},  {70, "aaaa bbbb(0 0 20 20) ok(60 5 10 10)"},
      {60, "aaaa bbbb(0 0 20 20) ok(50 5 10 10)"},  {46, "aaaa bbbb(0 0 20 20) ok(36 5 10 10)"},
      {45, "aaaa bbbb(0 0 15 40) ok(35 15 10 10)"}};
  for (const auto& [width, frames] : expected) {
    EXPECT_EQ(framesIn(tall, width, 100), frames) << width;
  }
}

TEST(LayoutTest, EmptyViewsTakeNeitherRoomNorSpacing) {
  const View row = HStack(
      8, {Text("a"), when(false, [] { return Text("gone"); }), Text("b"), View().padding(16)});
  EXPECT_EQ(framesIn(row, 18, 10), "a(0 0 5 10) b(13 0 5 10)");
}

TEST(LayoutTest, PaddingSurroundsAndModifiersApplyInTheirOrder) {
  EXPECT_EQ(ideal(Text("a").padding(16)), (Size{37, 42}));
  EXPECT_EQ(ideal(Text("a").padding(Edges::symmetric(13, 8))), (Size{31, 26}));
  EXPECT_EQ(ideal(Text("a").padding(4).frame(50, 50)), (Size{50, 50}));
  EXPECT_EQ(ideal(Text("a").frame(50, 50).padding(4)), (Size{58, 58}));
  EXPECT_EQ(framesIn(Text("a").padding({.top = 6}), 5, 16), "a(0 6 5 10)");
}

TEST(LayoutTest, AStackOfNothingVisibleTakesNoRoom) {
  EXPECT_EQ(framesIn(VStack(0, {HStack(0, {Rectangle().frame(0, 0)}), Text("a")}), 5, 10),
            "a(0 0 5 10)");
}

TEST(LayoutTest, FlexibleViewsShareWhatASpacersMinimumLeaves) {
  EXPECT_EQ(framesIn(HStack(0, {Text("a").maximumWidth(), Spacer(40), Text("b").maximumWidth()}),
                     100, 10),
            "a(12.5 0 5 10) b(82.5 0 5 10)");
}

TEST(LayoutTest, AFixedFrameAlignsItsContent) {
  EXPECT_EQ(framesIn(Text("a").frame(25, 30, Alignment::topLeading()), 25, 30), "a(0 0 5 10)");
  EXPECT_EQ(framesIn(Text("a").frame(25, 30, Alignment::bottomTrailing()), 25, 30),
            "a(20 20 5 10)");
  EXPECT_EQ(framesIn(Text("a").frame(25, 30), 25, 30), "a(10 10 5 10)");
}

TEST(LayoutTest, AFlexibleFrameGrowsToItsProposalUpToItsMaximum) {
  const View view =
      HStack(0, {Text("a").maximumWidth(60, Alignment::leading()), Text("b"), Spacer()});
  EXPECT_EQ(framesIn(view, 100, 10), "a(0 0 5 10) b(60 0 5 10)");
  EXPECT_EQ(framesIn(view, 50, 10), "a(0 0 5 10) b(45 0 5 10)");
  EXPECT_EQ(ideal(Text("a").maximumWidth()), (Size{5, 10}));
}

TEST(LayoutTest, TextIsTruncatedToItsHeightUnlessItIsFixed) {
  TestHost cut({20, 15});
  cut.show(Text("aaaa bbbb cccc").font(Font::system(10)));
  EXPECT_TRUE(cut.draws("text \"aaa…\""));
  EXPECT_EQ(cut.frames(), "aaaa bbbb cccc(0 2.5 20 10)");
  EXPECT_EQ(framesIn(Text("aaaa bbbb cccc").fixedSizeVertical(), 20, 15),
            "aaaa bbbb cccc(0 -7.5 20 30)");
}

TEST(LayoutTest, ALineLimitIsInherited) {
  EXPECT_EQ(framesIn(VStack(0, {Text("aaaa bbbb")}).lineLimit(1), 25, 40), "aaaa bbbb(0 15 25 10)");
}

TEST(LayoutTest, LayersAreProposedTheSizeOfTheirViewAndDoNotChangeIt) {
  const View view = Text("content")
                        .overlay(Text("o"), Alignment::topTrailing())
                        .background(Text("b"), Alignment::leading());
  EXPECT_EQ(framesIn(view, 35, 10), "b(0 0 5 10) content(0 0 35 10) o(30 0 5 10)");
  EXPECT_EQ(ideal(view), (Size{35, 10}));
}

TEST(LayoutTest, DepthStacksAreAsLargeAsTheirLargest) {
  EXPECT_EQ(framesIn(ZStack(Alignment::bottomTrailing(), {Text("aaa"), Text("b\nb")}), 15, 20),
            "aaa(0 10 15 10) b\nb(10 0 5 20)");
}

TEST(LayoutTest, AScrollViewTakesItsWidthAndTheHeightOfItsContent) {
  const View row = ScrollView(HStack(5, {Text("aaaa"), Text("bbbb")}));
  EXPECT_EQ(framesIn(VStack(0, {row, Text("c")}), 30, 20),
            "aaaa(0 0 20 10) bbbb(25 0 20 10) c(12.5 10 5 10)");
  EXPECT_EQ(ideal(row), (Size{45, 10}));
}

TEST(LayoutTest, ImagesKeepTheirSizeUntilTheyAreMadeResizable) {
  EXPECT_EQ(ideal(Image("photo")), (Size{40, 20}));
  EXPECT_EQ(ideal(Image("unknown")), (Size{0, 0}));
  TestHost test({30, 30});
  test.show(Image("photo").resizable());
  EXPECT_EQ(test.host->sizeThatFits(Proposal::of({30, 30})), (Size{30, 15}));
  EXPECT_EQ(test.host->sizeThatFits(Proposal::of({30, 10})), (Size{20, 10}));
  EXPECT_EQ(ideal(Image("photo").resizable()), (Size{40, 20}));
}

}  // namespace
}  // namespace orvane::ui
