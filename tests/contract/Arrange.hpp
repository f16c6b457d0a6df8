// The one line with which a contract test asks for what it needs.
#pragma once

/// Skips the test where the platform cannot be arranged like that.
#define ORVANE_ARRANGE(arrangement)                                  \
  do {                                                               \
    if (!(arrangement)) {                                            \
      GTEST_SKIP() << "this platform cannot arrange: " #arrangement; \
    }                                                                \
  } while (false)
