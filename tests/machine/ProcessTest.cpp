// The start and the end of a machine and of a process: what ends with it and what survives.
#include <memory>

#include <gtest/gtest.h>

#include "Orvane/base/ProcessShared.hpp"
#include "Orvane/platform/appkit/Application.hpp"
#include "Orvane/platform/appkit/MainQueue.hpp"
#include "Orvane/platform/appkit/NotificationCenter.hpp"
#include "Orvane/platform/appkit/UserDefaults.hpp"
#include "desk/machine/MachineScope.hpp"
#include "desk/machine/Process.hpp"
#include "tests/support/TestDisplays.hpp"

namespace orvane::desk {
namespace {

class ProcessTest : public testing::Test {
 protected:
  MachineScope scope;
  Machine& machine = scope.machine();
};

TEST_F(ProcessTest, AMachineStartsWithoutAProcess) {
  int runs = 0;
  EXPECT_FALSE(machine.process.isRunning());
  appkit::MainQueue::async([&runs] { ++runs; });
  machine.runDue();
  EXPECT_EQ(runs, 0);
}

TEST_F(ProcessTest, ObserversEndWithItAndAProcessThatDoesNotRunReceivesNothing) {
  machine.process.start();
  int heard = 0;
  const auto token = appkit::NotificationCenter::addObserver(
      appkit::NotificationName::applicationDidChangeScreenParameters, [&heard] { ++heard; });
  attach(machine, laptop());
  EXPECT_EQ(heard, 1);
  machine.process.end();
  detach(machine, 1);
  machine.process.start();
  attach(machine, laptop());
  EXPECT_EQ(heard, 1);
  appkit::NotificationCenter::removeObserver(token);
}

/// A shared object whose destructor makes requests that must have no effect.
struct LastWords {
  ~LastWords() {
    appkit::UserDefaults::setBoolean("lastWords", true);
    appkit::UserDefaults::remove("kept");
    appkit::MainQueue::async([] { appkit::UserDefaults::setBoolean("later", true); });
  }
};

ProcessShared<LastWords> lastWords;

TEST_F(ProcessTest, ItsSharedObjectsEndWithItAndTheirLastPostsAreDropped) {
  machine.process.start();
  appkit::UserDefaults::setBoolean("kept", true);
  lastWords.get();
  machine.process.end();
  EXPECT_FALSE(lastWords.exists());
  machine.process.start();
  machine.advance(1);
  EXPECT_EQ(machine.userDefaults.values(),
            (UserDefaultsStore::Values{{"kept", PropertyValue(true)}}));
}

TEST_F(ProcessTest, ANewProcessHasTheDefaultActivationPolicy) {
  machine.process.start();
  appkit::Application::setActivationPolicy(appkit::ActivationPolicy::accessory);
  EXPECT_EQ(machine.application.activationPolicy, appkit::ActivationPolicy::accessory);
  machine.process.end();
  machine.process.start();
  EXPECT_EQ(machine.application.activationPolicy, appkit::ActivationPolicy::regular);
}

TEST_F(ProcessTest, StartingTwiceHasNoEffect) {
  machine.process.start();
  int runs = 0;
  appkit::MainQueue::async([&runs] { ++runs; });
  machine.process.start();
  machine.runDue();
  EXPECT_EQ(runs, 1);
}

TEST_F(ProcessTest, MayEndFromWithinATask) {
  machine.process.start();
  const auto held = std::make_shared<int>(0);
  appkit::MainQueue::async([this, held] {
    machine.process.end();
    ++*held;
  });
  appkit::MainQueue::async([held] { *held += 100; });
  machine.runDue();
  EXPECT_EQ(*held, 1);
  EXPECT_FALSE(machine.process.isRunning());
}

TEST(MachineScopeTest, ReportsLeakedObjects) {
  MachineScope scope;
  const CFStringRef text =
      CFStringCreateWithCString(kCFAllocatorDefault, "left behind", kCFStringEncodingUTF8);
  Machine::current().objects.retain(text, "test");
  EXPECT_EQ(scope.end(),
            std::vector<std::string>{"not released: CFString \"left behind\", references: 2"});
}

TEST(MachineScopeTest, ReportsFaults) {
  MachineScope scope;
  const CFStringRef text =
      CFStringCreateWithCString(kCFAllocatorDefault, "twice", kCFStringEncodingUTF8);
  CFRelease(text);
  CFRelease(text);
  EXPECT_EQ(scope.end(),
            std::vector<std::string>{"fault: CFRelease: CFString \"twice\" was already released"});
}

TEST(MachineScopeDeathTest, ASecondMachineAtATimeIsRefused) {
  const MachineScope scope;
  EXPECT_DEATH(MachineScope(), "switched on already");
}

TEST(MachineScopeDeathTest, WithoutAMachineThePlatformIsUnavailable) {
  EXPECT_DEATH(Machine::current(), "no machine is switched on");
}

}  // namespace
}  // namespace orvane::desk
