// Reference counting, and recorded faults.
#include <memory>
#include <utility>

#include <gtest/gtest.h>

#include "desk/machine/ObjectRegistry.hpp"

namespace orvane::desk {
namespace {

class Probe : public Object {
 public:
  Probe(ObjectKind kind, int& ends) : Object(kind), ends_(ends) {}
  void lastReferenceGone() override { ++ends_; }

 private:
  int& ends_;
};

class ObjectRegistryTest : public testing::Test {
 protected:
  Object* add(ObjectKind kind = ObjectKind::uuid) {
    return registry.add(std::make_unique<Probe>(kind, ends));
  }

  int ends = 0;
  Faults faults;
  ObjectRegistry registry{faults};
};

TEST_F(ObjectRegistryTest, AnObjectLivesUntilItsLastReferenceIsReleased) {
  Object* const object = add();
  EXPECT_EQ(registry.referenceCount(object), 1);
  registry.retain(object, "retain");
  registry.release(object, "release");
  EXPECT_EQ(ends, 0);
  EXPECT_EQ(registry.liveCount(), 1U);
  registry.release(object, "release");
  EXPECT_EQ(ends, 1);
  EXPECT_EQ(registry.liveCount(), 0U);
  EXPECT_EQ(faults.count(), 0U);
}

TEST_F(ObjectRegistryTest, EveryUseAfterTheEndIsAFaultWithTheCallersName) {
  Object* const object = add();
  registry.release(object, "first");
  registry.release(object, "second");
  registry.retain(object, "third");
  EXPECT_EQ(registry.find(object, "fourth"), nullptr);
  EXPECT_EQ(faults.take(), (std::vector<std::string>{"second: CFUUID was already released",
                                                     "third: CFUUID was already released",
                                                     "fourth: CFUUID was already released"}));
  EXPECT_EQ(ends, 1);
}

TEST_F(ObjectRegistryTest, NullAndUnknownObjectsAreFaults) {
  const int stranger = 0;
  registry.release(nullptr, "release");
  registry.retain(&stranger, "retain");
  EXPECT_EQ(faults.take(), (std::vector<std::string>{"release: null instead of an object",
                                                     "retain: not an object of this machine"}));
}

TEST_F(ObjectRegistryTest, AnObjectOfAnotherKindIsAFault) {
  Object* const object = add();
  EXPECT_EQ(registry.find(object, ObjectKind::uuid, "use"), object);
  EXPECT_EQ(registry.find(object, ObjectKind::string, "use"), nullptr);
  EXPECT_EQ(faults.take(), (std::vector<std::string>{"use: CFUUID is no CFString"}));
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

TEST_F(ObjectRegistryTest, ConstantsAreNeverReleasedNorCounted) {
  static int constantEnds = 0;
  static Probe constant(ObjectKind::boolean, constantEnds);
  ObjectRegistry::addConstant(constant);
  registry.release(&constant, "release");
  registry.release(&constant, "release");
  registry.retain(&constant, "retain");
  EXPECT_EQ(registry.find(&constant, ObjectKind::boolean, "find"), &constant);
  EXPECT_EQ(registry.liveCount(), 0U);
  EXPECT_EQ(constantEnds, 0);
  EXPECT_EQ(faults.count(), 0U);
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
