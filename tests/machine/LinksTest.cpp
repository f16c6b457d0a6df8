// Which URLs are valid, which are refused, and the log of requests.
#include <gtest/gtest.h>

#include "desk/machine/Links.hpp"

namespace orvane::desk {
namespace {

TEST(LinksTest, KnowValidURLs) {
  for (const char* text :
       {"https://orvane.example/privacy", "mailto:support@orvane.example?subject=Orvane%20Support",
        "x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility",
        "a:", "file:///System/Applications/System%20Settings.app", "h:a#b"}) {
    EXPECT_TRUE(Links::formsURL(text)) << text;
  }
  for (const char* text :
       {"", "no scheme", "relative/path", ":nothing", "1a:b", "a b:c", "https://two words",
        "https://bad%2", "https://bad%zz", "https://a#b#c", "https://caf\xC3\xA9", "a:\"b\""}) {
    EXPECT_FALSE(Links::formsURL(text)) << text;
  }
}

TEST(LinksTest, RecordRequestsInOrder) {
  Links links;
  EXPECT_TRUE(links.openURL("a:1"));
  EXPECT_TRUE(links.openFile("/System/Applications/System Settings.app"));
  ASSERT_EQ(links.opened().size(), 2U);
  EXPECT_EQ(links.opened()[0].url, "a:1");
  EXPECT_FALSE(links.opened()[0].isFile);
  EXPECT_EQ(links.opened()[1].url, "file:///System/Applications/System%20Settings.app");
  EXPECT_TRUE(links.opened()[1].isFile);
}

TEST(LinksTest, InvalidURLsAndRelativePathsAreNeitherOpenedNorRecorded) {
  Links links;
  EXPECT_FALSE(links.openURL("not a url"));
  EXPECT_FALSE(links.openFile("relative"));
  EXPECT_TRUE(links.opened().empty());
}

}  // namespace
}  // namespace orvane::desk
