// Properties of every view tree: sizes are numbers, children lie within their parents, and spacings
// are exact. And the division of a length among items.
#include <algorithm>
#include <cmath>
#include <limits>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "Orvane/ui/draw/Color.hpp"
#include "Orvane/ui/host/BuildPass.hpp"
#include "Orvane/ui/host/LayoutPass.hpp"
#include "Orvane/ui/layout/StackLayout.hpp"
#include "Orvane/ui/views/ScrollView.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "tests/support/SyntheticTextMeasurer.hpp"

namespace orvane::ui {
namespace {

constexpr double spacing = 7;

View anyView(int depth);

std::vector<View> anyChildren(int depth) {
  std::vector<View> children;
  const int count = *rc::gen::inRange(0, 5);
  for (int index = 0; index < count; ++index) {
    children.push_back(anyView(depth - 1));
  }
  return children;
}

View anyLeaf() {
  switch (*rc::gen::inRange(0, 4)) {
    case 0:
      return Text(*rc::gen::element<std::string>("a", "two words", "a longer text of words", ""));
    case 1:
      return Spacer(*rc::gen::inRange(0, 20));
    case 2:
      return Capsule();
    default:
      return Rectangle().frame(*rc::gen::inRange(0, 80), *rc::gen::inRange(0, 80));
  }
}

// Views that contain their content: no smaller frame, no offset, no layer, no scrolling.
View anyView(int depth) {
  if (depth == 0) {
    return anyLeaf();
  }
  switch (*rc::gen::inRange(0, 7)) {
    case 0:
      return HStack(spacing, anyChildren(depth));
    case 1:
      return VStack(spacing, HorizontalAlignment::trailing, anyChildren(depth));
    case 2:
      return ZStack(Alignment::topTrailing(), anyChildren(depth));
    case 3:
      return anyView(depth - 1).padding(*rc::gen::inRange(0, 20));
    case 4:
      return anyView(depth - 1).maximumWidth();
    case 5:
      return *rc::gen::arbitrary<bool>() ? anyView(depth - 1).fixedSize()
                                         : anyView(depth - 1).fixedSizeVertical();
    default:
      return anyLeaf();
  }
}

std::optional<double> anyLength() {
  return *rc::gen::element<std::optional<double>>(std::nullopt, 0.0, 3.0, 50.0, 333.0, 1e9,
                                                  infinity, -5.0, std::nan(""));
}

// A tree laid out without a host.
class LaidOut {
 public:
  LaidOut(const View& view, const Proposal& proposal) {
    const auto environment = std::make_shared<Environment>();
    const ColorResolver resolver = standardColor;
    Damage damage;
    BuildPass build({0, resolver, nodeCount_, damage, std::nullopt});
    build.root(root, view, environment);
    LayoutPass layout{text_, images_, 0};
    size = layout.measure(*root, proposal);
    layout.place(*root, {0, 0}, proposal);
  }

  std::vector<Rect> frames() const {
    std::vector<Rect> result;
    visitNodes(*root, [&](const Node& node) { result.push_back(node.targetFrame()); });
    return result;
  }

  std::unique_ptr<Node> root;
  Size size;

 private:
  SyntheticTextMeasurer text_;
  ImageSource images_;
  std::uint64_t nodeCount_ = 0;
};

RC_GTEST_PROP(LayoutPropertyTest, SizesAreNumbersAndFramesAreFinite, ()) {
  View view = anyView(4);
  if (*rc::gen::arbitrary<bool>()) {
    view = ScrollView(view).overlay(anyView(2)).offset(3, 4);
  }
  const LaidOut tree(view, {anyLength(), anyLength()});
  RC_ASSERT(tree.size.width >= 0 && tree.size.height >= 0);
  for (const Rect& frame : tree.frames()) {
    RC_ASSERT(std::isfinite(frame.x) && std::isfinite(frame.y));
    RC_ASSERT(std::isfinite(frame.width) && frame.width >= 0);
    RC_ASSERT(std::isfinite(frame.height) && frame.height >= 0);
  }
}

RC_GTEST_PROP(LayoutPropertyTest, ChildrenLieWithinTheirParent, ()) {
  const LaidOut tree(anyView(4),
                     {double(*rc::gen::inRange(0, 400)), double(*rc::gen::inRange(0, 400))});
  constexpr double rounding = 1e-6;
  visitNodes(*tree.root, [&](const Node& node) {
    const Rect own = node.targetFrame();
    for (const auto& child : node.children) {
      const Rect frame = child->targetFrame();
      RC_ASSERT(frame.x >= -rounding && frame.y >= -rounding);
      RC_ASSERT(frame.right() <= own.width + rounding);
      RC_ASSERT(frame.bottom() <= own.height + rounding);
    }
  });
}

RC_GTEST_PROP(LayoutPropertyTest, SpacingsAreExact, ()) {
  const LaidOut tree(anyView(4),
                     {double(*rc::gen::inRange(0, 400)), double(*rc::gen::inRange(0, 400))});
  visitNodes(*tree.root, [&](const Node& node) {
    const std::optional<Axis> axis = node.element->stackAxis();
    if (!axis) {
      return;
    }
    double end = -spacing;
    for (const auto& child : node.children) {
      const Rect frame = child->targetFrame();
      const double start = *axis == Axis::horizontal ? frame.x : frame.y;
      RC_ASSERT(std::abs(start - (end + spacing)) < 1e-9);
      end = start + turned(*axis, frame.size()).width;
    }
    if (!node.children.empty()) {
      RC_ASSERT(std::abs(turned(*axis, node.targetFrame().size()).width - end) < 1e-9);
    }
  });
}

// Of items that choose what they are offered, within their bounds.
std::vector<double> divided(std::optional<double> available, double gap,
                            const std::vector<StackItem>& items) {
  std::vector<double> lengths;
  const auto choose = [&](std::size_t index, std::optional<double> offer) {
    return std::clamp(offer.value_or(items[index].minimum), items[index].minimum,
                      items[index].maximum);
  };
  for (const StackSegment& segment : divideStack(available, gap, items, choose)) {
    lengths.push_back(segment.length);
  }
  return lengths;
}

constexpr double unlimited = std::numeric_limits<double>::infinity();

TEST(StackLayoutTest, FlexibleItemsShareEquallyWhatRigidOnesLeave) {
  EXPECT_EQ(divided(100, 10, {{20, 20, 0}, {0, unlimited, 0}, {0, unlimited, 0}}),
            (std::vector<double>{20, 30, 30}));
}

TEST(StackLayoutTest, TheRestOfALimitedItemGoesToTheOthers) {
  EXPECT_EQ(divided(90, 0, {{0, unlimited, 0}, {0, 10, 0}, {0, unlimited, 0}}),
            (std::vector<double>{40, 10, 40}));
}

TEST(StackLayoutTest, HigherPrioritiesAreServedFirstAndLowerOnesKeepTheirMinimum) {
  EXPECT_EQ(divided(100, 0, {{5, unlimited, 0}, {0, unlimited, 1}}), (std::vector<double>{5, 95}));
}

TEST(StackLayoutTest, EqualItemsAreServedInTheirOrder) {
  std::vector<std::size_t> order;
  (void)divideStack(30.0, 0, {{0, 10, 0}, {0, 10, 0}, {0, 10, 0}},
                    [&](std::size_t index, std::optional<double>) {
                      order.push_back(index);
                      return 10.0;
                    });
  EXPECT_EQ(order, (std::vector<std::size_t>{0, 1, 2}));
}

TEST(StackLayoutTest, AnIndefiniteLengthIsPassedOnAsItIs) {
  const std::vector<StackItem> items{{3, unlimited, 0}, {4, 8, 0}};
  EXPECT_EQ(divided(std::nullopt, 5, items), (std::vector<double>{3, 4}));
  EXPECT_EQ(divided(unlimited, 5, items), (std::vector<double>{unlimited, 8}));
}

RC_GTEST_PROP(StackLayoutTest, LengthsAreFiniteAndFillTheStackExactlyWhenAnItemIsFlexible, ()) {
  const auto count = static_cast<std::size_t>(*rc::gen::inRange(1, 7));
  std::vector<StackItem> items;
  double minimum = 0;
  bool isFlexible = false;
  for (std::size_t index = 0; index < count; ++index) {
    const double low = *rc::gen::inRange(0, 40);
    const bool grows = *rc::gen::arbitrary<bool>();
    items.push_back(
        {low, grows ? unlimited : low + *rc::gen::inRange(0, 30), double(*rc::gen::inRange(0, 3))});
    minimum += low;
    isFlexible = isFlexible || grows;
  }
  const double gap = *rc::gen::inRange(0, 12);
  const double available = *rc::gen::inRange(0, 600);
  const std::vector<double> lengths = divided(available, gap, items);
  double sum = gap * static_cast<double>(count - 1);
  for (std::size_t index = 0; index < count; ++index) {
    RC_ASSERT(std::isfinite(lengths[index]));
    RC_ASSERT(lengths[index] >= items[index].minimum && lengths[index] <= items[index].maximum);
    sum += lengths[index];
  }
  if (available >= minimum + gap * static_cast<double>(count - 1)) {
    RC_ASSERT(sum <= available + 1e-6);
    RC_ASSERT(!isFlexible || std::abs(sum - available) < 1e-6);
  }
}

}  // namespace
}  // namespace orvane::ui
