// Tests of the environment in which the contract tests run on AppKit.
#include "tests/contract/macos/ApplicationRun.hpp"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(ApplicationRun, AutoreleasedObjectsAreReleasedAfterEachServeAndTest) {
  __weak NSObject* first = nil;
  __weak NSObject* second = nil;
  {
    ApplicationRun run;
    __autoreleasing NSObject* object = [[NSObject alloc] init];
    first = object;
    run.serve(0, NSDefaultRunLoopMode);
    EXPECT_EQ(first, nil);
    object = [[NSObject alloc] init];
    second = object;
  }
  EXPECT_EQ(second, nil);
}

}  // namespace
}  // namespace orvane
