// The macro with which a contract test states a precondition.
#pragma once

/// Skips the test if the platform cannot provide the precondition.
#define ORVANE_ARRANGE(arrangement)                                  \
  do {                                                               \
    if (!(arrangement)) {                                            \
      GTEST_SKIP() << "this platform cannot arrange: " #arrangement; \
    }                                                                \
  } while (false)
