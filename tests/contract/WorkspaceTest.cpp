// What the application relies on when it opens links and files.
#include "Orvane/platform/appkit/Workspace.hpp"
#include "tests/contract/Arrange.hpp"
#include "tests/contract/ContractFixture.hpp"

namespace orvane {
namespace {

using appkit::Workspace;
using WorkspaceContract = ContractFixture;

TEST_F(WorkspaceContract, WhatIsNoURLIsNotOpened) {
  EXPECT_FALSE(Workspace::openURL(""));
}

TEST_F(WorkspaceContract, ARefusedLinkIsToldAndAnotherIsOpened) {
  ORVANE_ARRANGE(canOpenLinks());
  ORVANE_ARRANGE(refuseLinks("x-apple.systempreferences:com.apple.settings"));
  EXPECT_FALSE(Workspace::openURL("x-apple.systempreferences:com.apple.settings.Privacy"));
  EXPECT_TRUE(Workspace::openURL("x-apple.systempreferences:com.apple.preference.security"));
  EXPECT_TRUE(Workspace::openFile("/System/Applications/System Settings.app"));
}

TEST_F(WorkspaceContract, EncodesWhatAQueryMayNotHold) {
  EXPECT_EQ(Workspace::percentEncodedForQuery("Orvane Support"), "Orvane%20Support");
  EXPECT_EQ(Workspace::percentEncodedForQuery(""), "");
  EXPECT_EQ(Workspace::percentEncodedForQuery("aZ09-._~!$&'()*+,;=:@/?"),
            "aZ09-._~!$&'()*+,;=:@/?");
  EXPECT_EQ(Workspace::percentEncodedForQuery("#[]%\"<>\\^`{|}"),
            "%23%5B%5D%25%22%3C%3E%5C%5E%60%7B%7C%7D");
  EXPECT_EQ(Workspace::percentEncodedForQuery("\xE5\xB7\xA6"), "%E5%B7%A6");
}

TEST_F(WorkspaceContract, TextThatIsNotUtf8HasNoEncoding) {
  EXPECT_EQ(Workspace::percentEncodedForQuery("\xFF"), std::nullopt);
}

}  // namespace
}  // namespace orvane
