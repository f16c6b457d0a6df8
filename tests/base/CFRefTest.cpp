// CFRef releases what it owns exactly once. The machine counts the live objects and reports double
// releases.
#include <utility>

#include <gtest/gtest.h>

#include "Orvane/base/CFRef.hpp"
#include "Orvane/platform/CFText.hpp"
#include "Orvane/platform/Quartz.hpp"
#include "tests/support/MachineFixture.hpp"

namespace orvane {
namespace {

using Text = CFRef<CFStringRef>;

Text made(const char* text) {
  return Text::owning(CFStringCreateWithCString(kCFAllocatorDefault, text, kCFStringEncodingUTF8));
}

class CFRefTest : public desk::MachineFixture {
 protected:
  [[nodiscard]] std::size_t liveCount() const { return machine.objects.liveCount(); }
};

TEST_F(CFRefTest, AnOwnedObjectIsReleasedAtTheEnd) {
  {
    const Text text = made("a");
    EXPECT_TRUE(text);
    EXPECT_EQ(liveCount(), 1U);
    EXPECT_EQ(textOf(text.get()), "a");
  }
  EXPECT_EQ(liveCount(), 0U);
}

TEST_F(CFRefTest, AnEmptyOneHoldsNullAndReleasesNothing) {
  Text text;
  EXPECT_FALSE(text);
  EXPECT_EQ(text.get(), nullptr);
  text.reset();
  const Text refused = made("\xFF\xFE");
  EXPECT_FALSE(refused);
}

TEST_F(CFRefTest, MovingTransfersTheObject) {
  Text first = made("a");
  const CFStringRef object = first.get();
  Text second = std::move(first);
  EXPECT_EQ(second.get(), object);
  EXPECT_EQ(first.get(), nullptr);  // NOLINT(bugprone-use-after-move): empty is the promise.
  EXPECT_EQ(machine.objects.referenceCount(object), 1);
}

TEST_F(CFRefTest, AssigningReleasesTheFirstObject) {
  Text text = made("a");
  text = made("b");
  EXPECT_EQ(liveCount(), 1U);
  EXPECT_EQ(textOf(text.get()), "b");
  text.reset();
  EXPECT_FALSE(text);
  EXPECT_EQ(liveCount(), 0U);
}

TEST_F(CFRefTest, SelfMoveKeepsTheObject) {
  Text text = made("a");
  Text& same = text;
  text = std::move(same);
  EXPECT_TRUE(text);
  EXPECT_EQ(liveCount(), 1U);
}

}  // namespace
}  // namespace orvane
