// Contract tests for the main queue.
#include <string>

#include "Orvane/platform/appkit/MainQueue.hpp"
#include "tests/contract/ContractFixture.hpp"

namespace orvane {
namespace {

using appkit::MainQueue;
using MainQueueContract = ContractFixture;

TEST_F(MainQueueContract, TasksRunInOrderAndNeverNested) {
  std::string log;
  MainQueue::async([&log] {
    log += "a(";
    MainQueue::async([&log] { log += "c"; });
    log += ")";
  });
  MainQueue::async([&log] { log += "b"; });
  letTimePass(0.05);
  EXPECT_EQ(log, "a()bc");
}

TEST_F(MainQueueContract, ADelayedTaskDoesNotRunEarly) {
  std::string log;
  MainQueue::asyncAfter(0.2, [&log] { log += "late"; });
  MainQueue::asyncAfter(0.05, [&log] { log += "early "; });
  letTimePass(0.1);
  EXPECT_EQ(log, "early ");
  letTimePass(0.2);
  EXPECT_EQ(log, "early late");
}

}  // namespace
}  // namespace orvane
