// Objects that live until their process ends.
#include <string>

#include <gtest/gtest.h>

#include "Orvane/base/ProcessShared.hpp"

namespace orvane {
namespace {

std::string& ended() {
  static std::string names;
  return names;
}

template <char name>
struct Witness {
  Witness() = default;
  Witness(const Witness&) = delete;
  Witness& operator=(const Witness&) = delete;
  ~Witness() { ended() += name; }
  int value = 0;
};

class ProcessSharedTest : public testing::Test {
 protected:
  ProcessSharedTest() {
    ProcessLifetime::end();
    ended().clear();
  }
  ~ProcessSharedTest() override { ProcessLifetime::end(); }
};

TEST_F(ProcessSharedTest, TheObjectIsCreatedOnFirstUse) {
  ProcessShared<Witness<'a'>> shared;
  EXPECT_FALSE(shared.exists());
  shared.get().value = 5;
  EXPECT_TRUE(shared.exists());
  EXPECT_EQ(shared.get().value, 5);
  ProcessLifetime::end();
}

TEST_F(ProcessSharedTest, TheNextProcessGetsANewObject) {
  ProcessShared<Witness<'a'>> shared;
  shared.get().value = 5;
  ProcessLifetime::end();
  EXPECT_EQ(ended(), "a");
  EXPECT_FALSE(shared.exists());
  EXPECT_EQ(shared.get().value, 0);
  ProcessLifetime::end();
  ProcessLifetime::end();
  EXPECT_EQ(ended(), "aa");
}

TEST_F(ProcessSharedTest, ObjectsEndInTheReverseOrderOfTheirCreation) {
  ProcessShared<Witness<'a'>> first;
  ProcessShared<Witness<'b'>> second;
  ProcessShared<Witness<'c'>> third;
  second.get();
  first.get();
  third.get();
  ProcessLifetime::end();
  EXPECT_EQ(ended(), "cab");
}

}  // namespace
}  // namespace orvane
