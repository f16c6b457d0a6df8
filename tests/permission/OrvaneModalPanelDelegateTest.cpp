// The modal session ends exactly once.
#include <vector>

#include "Orvane/permission/OrvaneModalPanelDelegate.hpp"
#include "tests/permission/PermissionFlow.hpp"

namespace orvane {
namespace {

class OrvaneModalPanelDelegateTest : public PermissionFlow {
 protected:
  /// Two nested sessions: a second stop would end the outer one.
  void runTwoSessions() {
    for (appkit::Window* const panel : {&outer, &inner}) {
      appkit::Application::runModal(*panel,
                                    [this](int response) { responses.push_back(response); });
    }
  }

  appkit::Window outer{appkit::WindowKind::panel, CGRectMake(0, 0, 50, 50), 1};
  appkit::Window inner{appkit::WindowKind::panel, CGRectMake(0, 0, 50, 50), 1};
  std::vector<int> responses;
  OrvaneModalPanelDelegate delegate;
};

TEST_F(OrvaneModalPanelDelegateTest, TheFirstResponseStopsTheSession) {
  runTwoSessions();
  delegate.stopModalOnce(1000);
  delegate.stopModalOnce(1001);
  delegate.windowWillClose();
  machine.runDue();
  EXPECT_EQ(responses, std::vector<int>{1000}) << "the outer session continues";
}

TEST_F(OrvaneModalPanelDelegateTest, ClosingThePanelDeclines) {
  runTwoSessions();
  delegate.windowWillClose();
  delegate.stopModalOnce(1000);
  machine.runDue();
  EXPECT_EQ(responses, std::vector<int>{1001});
}

}  // namespace
}  // namespace orvane
