// Contract tests for opening links and files.
#include <functional>
#include <vector>

#include "Orvane/platform/appkit/Workspace.hpp"
#include "tests/contract/Arrange.hpp"
#include "tests/contract/ContractFixture.hpp"

namespace orvane {
namespace {

using appkit::Workspace;

class WorkspaceContract : public ContractFixture {
 protected:
  /// Records a result, and whether the call had returned before it arrived.
  [[nodiscard]] std::function<void(bool)> answer() {
    return [this](bool isOpened) {
      EXPECT_TRUE(hasReturned);
      answers.push_back(isOpened);
    };
  }
  /// Another process may answer late.
  std::vector<bool> answersInTime(std::size_t count) {
    hasReturned = true;
    for (int turn = 0; turn < 100 && answers.size() < count; ++turn) {
      letTimePass(0.05);
    }
    return answers;
  }

  bool hasReturned = false;
  std::vector<bool> answers;
};

TEST_F(WorkspaceContract, AnInvalidURLIsNotOpened) {
  Workspace::openURL("");
  Workspace::openURL("", answer());
  Workspace::openURL("no link", answer());
  Workspace::openURL("\xFF", answer());
  EXPECT_EQ(answersInTime(3), (std::vector<bool>{false, false, false}));
}

TEST_F(WorkspaceContract, ARefusedLinkIsReported) {
  ORVANE_ARRANGE(canOpenLinks());
  ORVANE_ARRANGE(refuseLinks("x-apple.systempreferences:com.apple.settings"));
  Workspace::openURL("x-apple.systempreferences:com.apple.settings.Privacy", answer());
  EXPECT_EQ(answersInTime(1), std::vector<bool>{false});
  hasReturned = false;
  Workspace::openURL("x-apple.systempreferences:com.apple.preference.security", answer());
  Workspace::openFile("/System/Applications/System Settings.app", answer());
  EXPECT_EQ(answersInTime(3), (std::vector<bool>{false, true, true}));
}

TEST_F(WorkspaceContract, EncodesTheCharactersThatAQueryMayNotContain) {
  EXPECT_EQ(Workspace::percentEncodedForQuery("Orvane Support"), "Orvane%20Support");
  EXPECT_EQ(Workspace::percentEncodedForQuery(""), "");
  EXPECT_EQ(Workspace::percentEncodedForQuery("aZ09-._~!$&'()*+,;=:@/?"),
            "aZ09-._~!$&'()*+,;=:@/?");
  EXPECT_EQ(Workspace::percentEncodedForQuery("#[]%\"<>\\^`{|}"),
            "%23%5B%5D%25%22%3C%3E%5C%5E%60%7B%7C%7D");
  EXPECT_EQ(Workspace::percentEncodedForQuery("\xE5\xB7\xA6"), "%E5%B7%A6");
  EXPECT_EQ(Workspace::percentEncodedForQuery("\xFF"), std::nullopt) << "it is not UTF-8";
}

}  // namespace
}  // namespace orvane
