// The outlines of shapes and their curvature.
#include <cmath>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "Orvane/ui/draw/Shape.hpp"

namespace orvane::ui {
namespace {

struct Sample {
  Point point;
  double curvature;
};

// Points and curvatures along all cubics of an outline, both ends of each cubic included.
std::vector<Sample> samples(const Path& path) {
  std::vector<Sample> result;
  Point from;
  for (const PathElement& element : path.elements()) {
    if (element.kind == PathElement::Kind::cubic) {
      for (int step = 0; step <= 16; ++step) {
        const double t = step / 16.0;
        const double u = 1 - t;
        const auto at = [&](double a, double b, double c, double d) {
          return u * u * u * a + 3 * u * u * t * b + 3 * u * t * t * c + t * t * t * d;
        };
        const auto slope = [&](double a, double b, double c, double d) {
          return 3 * (u * u * (b - a) + 2 * u * t * (c - b) + t * t * (d - c));
        };
        const auto bend = [&](double a, double b, double c, double d) {
          return 6 * (u * (c - 2 * b + a) + t * (d - 2 * c + b));
        };
        const double dx = slope(from.x, element.control1.x, element.control2.x, element.to.x);
        const double dy = slope(from.y, element.control1.y, element.control2.y, element.to.y);
        const double ddx = bend(from.x, element.control1.x, element.control2.x, element.to.x);
        const double ddy = bend(from.y, element.control1.y, element.control2.y, element.to.y);
        result.push_back({{at(from.x, element.control1.x, element.control2.x, element.to.x),
                           at(from.y, element.control1.y, element.control2.y, element.to.y)},
                          (dx * ddy - dy * ddx) / std::pow(dx * dx + dy * dy, 1.5)});
      }
    }
    from = element.to;
  }
  return result;
}

TEST(ShapeTest, CirclesAndCircularCornersAreRound) {
  const Rect rect{0, 0, 100, 40};
  for (const Shape& shape : {Shape::roundedRectangle(rect, 20, CornerStyle::circular),
                             Shape::capsule(rect), Shape::circle(rect)}) {
    const Rect centers = shape.rect.inset(20);
    const std::vector<Sample> all = samples(shape.path());
    EXPECT_EQ(all.size(), 4 * 17U) << "four cubics";
    for (const auto& [point, curvature] : all) {
      EXPECT_NEAR(std::hypot(point.x - std::clamp(point.x, centers.x, centers.right()),
                             point.y - std::clamp(point.y, centers.y, centers.bottom())),
                  20, 0.01);
    }
  }
}

TEST(ShapeTest, AContinuousCornerHasNoJumpOfCurvature) {
  const Shape shape = Shape::roundedRectangle({0, 0, 200, 200}, 20);
  const std::vector<Sample> all = samples(shape.path());
  ASSERT_EQ(all.size(), 12 * 17U) << "three cubics at each corner";
  double strongest = 0;
  for (std::size_t index = 0; index < all.size(); ++index) {
    strongest = std::max(strongest, all[index].curvature);
    const bool isSamePoint =
        index > 0 && std::hypot(all[index].point.x - all[index - 1].point.x,
                                all[index].point.y - all[index - 1].point.y) < 1e-9;
    if (isSamePoint) {
      EXPECT_NEAR(all[index].curvature, all[index - 1].curvature, 0.002);
    }
  }
  EXPECT_NEAR(all.front().curvature, 0, 1e-6);
  // Everywhere less than a fifth tighter than the circle of its radius.
  EXPECT_GT(strongest, 1 / 20.0);
  EXPECT_LT(strongest, 1.2 / 20.0);
}

RC_GTEST_PROP(ShapeTest, OutlinesStayInsideTheirRectangleAndEndWhereTheyBegin, ()) {
  const Rect rect{double(*rc::gen::inRange(-50, 50)), double(*rc::gen::inRange(-50, 50)),
                  double(*rc::gen::inRange(1, 300)), double(*rc::gen::inRange(1, 300))};
  const double radius = *rc::gen::inRange(0, 200);
  const Shape shape =
      *rc::gen::element(Shape::rectangle(rect), Shape::roundedRectangle(rect, radius),
                        Shape::roundedRectangle(rect, radius, CornerStyle::circular),
                        Shape::capsule(rect), Shape::ellipse(rect), Shape::circle(rect));
  const Path path = shape.path();
  const std::vector<Sample> all = samples(path);
  RC_ASSERT(path.elements().back().kind == PathElement::Kind::close);
  if (!all.empty()) {
    const Point first = path.elements().front().to;
    RC_ASSERT(std::hypot(all.back().point.x - first.x, all.back().point.y - first.y) < 1e-9);
  }
  for (const Sample& sample : all) {
    RC_ASSERT(std::isfinite(sample.point.x) && std::isfinite(sample.point.y));
    RC_ASSERT(rect.inset(-1e-6).contains(sample.point));
  }
}

TEST(ShapeTest, ARectangleHasFourCorners) {
  const Path path = Shape::rectangle({1, 2, 30, 40}).path();
  std::vector<Point> corners;
  for (const PathElement& element : path.elements()) {
    corners.push_back(element.to);
  }
  // The last element closes the path.
  corners.pop_back();
  EXPECT_EQ(corners, (std::vector<Point>{{1, 2}, {31, 2}, {31, 42}, {1, 42}}));
}

TEST(ShapeTest, InsetKeepsCornersConcentric) {
  const Shape inner = Shape::roundedRectangle({0, 0, 50, 50}, 12).inset(2);
  EXPECT_EQ(inner.rect, (Rect{2, 2, 46, 46}));
  EXPECT_EQ(inner.cornerRadius, 10);
  EXPECT_EQ(Shape::roundedRectangle({0, 0, 50, 50}, 1).inset(3).cornerRadius, 0);
  EXPECT_EQ(Shape::roundedRectangle({0, 0, 50, 50}, 0).inset(-3).cornerRadius, 0)
      << "it stays sharp";
}

TEST(ShapeTest, ACircleIsTheLargestOneInTheMiddle) {
  EXPECT_EQ(Shape::circle({0, 0, 100, 40}), Shape::ellipse({30, 0, 40, 40}));
}

TEST(ShapeTest, AnEmptyRectangleHasNoOutline) {
  EXPECT_TRUE(Shape::capsule({5, 5, 0, 10}).path().elements().empty());
}

}  // namespace
}  // namespace orvane::ui
