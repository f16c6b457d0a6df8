// Reference counting, and recorded faults.
#include <memory>
#include <utility>

#include <gtest/gtest.h>

#include "desk/machine/ObjectRegistry.hpp"

namespace orvane::desk {
namespace {

class ObjectRegistryTest : public testing::Test {
 protected:
  Object* add(ObjectKind kind = ObjectKind::uuid) {
    return registry.add(std::make_unique<Object>(kind));
  }

  Faults faults;
  ObjectRegistry registry{faults};
};

TEST_F(ObjectRegistryTest, NullAndUnknownObjectsAreFaults) {
  const int stranger = 0;
  registry.release(nullptr, "release");
  registry.retain(&stranger, "retain");
  EXPECT_EQ(faults.take(), (std::vector<std::string>{"release: null instead of an object",
                                                     "retain: not an object of this machine"}));
}

TEST_F(ObjectRegistryTest, ListsLiveObjectsInOrderOfCreation) {
  add(ObjectKind::uuid);
  Object* const number = add(ObjectKind::number);
  registry.retain(number, "retain");
  add(ObjectKind::machPort);
  EXPECT_EQ(registry.liveDescriptions(),
            (std::vector<std::string>{"CFUUID, references: 1", "CFNumber, references: 2",
                                      "CFMachPort, references: 1"}));
  EXPECT_EQ(registry.liveCount(ObjectKind::number), 1U);
}

TEST_F(ObjectRegistryTest, AReleasedAddressIsNotReusedSoon) {
  Object* const object = add();
  registry.release(object, "release");
  for (int count = 0; count < 500; ++count) {
    Object* const next = add();
    ASSERT_NE(next, object);
    registry.release(next, "release");
  }
}

TEST_F(ObjectRegistryTest, OnlyTheFirstFaultsKeepTheirText) {
  for (std::size_t count = 0; count < Faults::textLimit + 5; ++count) {
    registry.release(nullptr, "release");
  }
  EXPECT_EQ(faults.count(), Faults::textLimit + 5);
  EXPECT_EQ(faults.texts().size(), Faults::textLimit);
}

}  // namespace
}  // namespace orvane::desk
