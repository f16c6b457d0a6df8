// Contract tests for the media clock and the calendar clock.
#include "tests/contract/ContractFixture.hpp"

namespace orvane {
namespace {

using ClocksContract = ContractFixture;

TEST_F(ClocksContract, TheMediaClockAdvancesAndNeverGoesBack) {
  const double before = CACurrentMediaTime();
  letTimePass(0.05);
  const double after = CACurrentMediaTime();
  EXPECT_GE(after - before, 0.049);
  EXPECT_GE(CACurrentMediaTime(), after);
}

TEST_F(ClocksContract, TheCalendarClockCountsSecondsSinceTheYear2001) {
  // The years 2026 to 2200: a clock with another epoch or unit is far outside.
  const double before = CFAbsoluteTimeGetCurrent();
  EXPECT_GE(before, 788'918'400);
  EXPECT_LT(before, 6'280'000'000);
  letTimePass(0.05);
  EXPECT_GE(CFAbsoluteTimeGetCurrent() - before, 0.049);
}

}  // namespace
}  // namespace orvane
