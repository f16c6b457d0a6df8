// Contract tests for Core Graphics rectangles.
#include <limits>

#include "tests/contract/ContractFixture.hpp"

namespace orvane {
namespace {

using CGGeometryContract = ContractFixture;

TEST_F(CGGeometryContract, EdgesCentresAndSizesAreComputedAlsoOfANegativeSize) {
  for (const CGRect& rect : {CGRectMake(10, -20, 100, 50), CGRectMake(110, 30, -100, -50)}) {
    EXPECT_EQ(CGRectGetMinX(rect), 10);
    EXPECT_EQ(CGRectGetMidX(rect), 60);
    EXPECT_EQ(CGRectGetMaxX(rect), 110);
    EXPECT_EQ(CGRectGetMinY(rect), -20);
    EXPECT_EQ(CGRectGetMidY(rect), 5);
    EXPECT_EQ(CGRectGetMaxY(rect), 30);
    EXPECT_EQ(CGRectGetWidth(rect), 100);
    EXPECT_EQ(CGRectGetHeight(rect), 50);
    EXPECT_TRUE(CGRectEqualToRect(rect, CGRectMake(10, -20, 100, 50)));
    EXPECT_TRUE(CGRectContainsPoint(rect, CGPointMake(10, -20)));
    EXPECT_FALSE(CGRectContainsPoint(rect, CGPointMake(110, 30)));
  }
}

TEST_F(CGGeometryContract, TheNearEdgesAreInsideTheFarOnesAreNot) {
  const CGRect rect = CGRectMake(0, 1068, 1920, 12);
  EXPECT_TRUE(CGRectContainsPoint(rect, CGPointMake(0, 1068)));
  EXPECT_TRUE(CGRectContainsPoint(rect, CGPointMake(1919.999, 1079.999)));
  EXPECT_FALSE(CGRectContainsPoint(rect, CGPointMake(1920, 1070)));
  EXPECT_FALSE(CGRectContainsPoint(rect, CGPointMake(500, 1080)));
  EXPECT_FALSE(CGRectContainsPoint(rect, CGPointMake(-0.001, 1070)));
  EXPECT_FALSE(CGRectContainsPoint(rect, CGPointMake(500, 1067.999)));
}

TEST_F(CGGeometryContract, AnEmptyOrNullRectangleContainsNothing) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  EXPECT_FALSE(CGRectContainsPoint(CGRectMake(5, 5, 0, 10), CGPointMake(5, 5)));
  EXPECT_FALSE(CGRectContainsPoint(CGRectMake(5, 5, 10, 0), CGPointMake(5, 5)));
  EXPECT_FALSE(CGRectContainsPoint(CGRectMake(infinity, infinity, 0, 0), CGPointMake(5, 5)));
}

TEST_F(CGGeometryContract, RectanglesAreEqualWhenAllFourNumbersAre) {
  const CGRect rect = CGRectMake(1, 2, 3, 4);
  EXPECT_TRUE(CGRectEqualToRect(rect, CGRectMake(1, 2, 3, 4)));
  EXPECT_FALSE(CGRectEqualToRect(rect, CGRectMake(1.0000001, 2, 3, 4)));
  EXPECT_FALSE(CGRectEqualToRect(rect, CGRectMake(1, 2.0000001, 3, 4)));
  EXPECT_FALSE(CGRectEqualToRect(rect, CGRectMake(1, 2, 3.0000001, 4)));
  EXPECT_FALSE(CGRectEqualToRect(rect, CGRectMake(1, 2, 3, 4.0000001)));
}

}  // namespace
}  // namespace orvane
