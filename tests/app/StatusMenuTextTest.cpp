// The titles of the menu in the desk's font: all of one size, and truncated only where necessary.
#include <algorithm>
#include <string>
#include <tuple>
#include <vector>

#include "tests/app/AppFixture.hpp"
#include "tests/panels/TextRun.hpp"

namespace orvane {
namespace {

const std::vector<std::string> longNames{"Studio Display of the Colour Laboratory (2)",
                                         "实验室的超宽曲面专业显示器 (2)",
                                         "Donaudampfschifffahrtsgesellschaft"};

/// The language, and which of the displays is the main one.
using Case = std::tuple<const char*, std::size_t>;

class StatusMenuTextTest : public AppFixture, public testing::WithParamInterface<Case> {
 protected:
  /// A display for each name, and the menu open.
  void beginWithOpenMenu() {
    const auto& [language, main] = GetParam();
    store("appLanguage", language);
    double left = 0;
    for (std::size_t index = 0; index < longNames.size(); ++index) {
      const auto number = static_cast<std::uint32_t>(index + 1);
      const desk::Display display =
          desk::displayOf(number, longNames[index], CGRectMake(left, 0, 1000, 800));
      desk::attach(machine, display, index == main);
      left += 1000;
    }
    machine.permission.setTrusted(true);
    application.launch();
    ASSERT_TRUE(openMenu());
  }
  [[nodiscard]] std::vector<TextRun> runsOf(desk::HostedView& view) {
    TextCollector collector(server().resources().shaper);
    view.update();
    view.host().paint(collector, {0, 0, 208, 30});
    return collector.runs();
  }
};

TEST_P(StatusMenuTextTest, AllTitlesHaveOneSizeAndOnlyDisplayNamesAreTruncated) {
  beginWithOpenMenu();
  const std::string mainSuffix = model().localized("(Main)", "（主要）");
  int cutTitles = 0;
  server().menus.layOut();
  for (const desk::MenuRow& row : server().menus.rows()) {
    if (row.view == nullptr || row.frame.size.height < 30) {
      continue;
    }
    const std::string& title = server().menus.menu()->items[row.itemIndex].title;
    const std::vector<TextRun> runs = runsOf(*row.view);
    ASSERT_EQ(runs.size(), 1U) << title;
    EXPECT_EQ(runs[0].font.size, 13) << title;
    EXPECT_LE(runs[0].frame.right(), 200) << title;
    const auto tooltip = row.view->host().tooltipAt({104, 15});
    if (runs[0].line == title) {
      EXPECT_FALSE(tooltip) << title;
      continue;
    }
    ++cutTitles;
    const bool isName = std::ranges::any_of(
        longNames, [&](const std::string& name) { return title.starts_with(name); });
    EXPECT_TRUE(isName) << title;
    const std::size_t end = std::min(title.find("(2)"), title.find(mainSuffix));
    const std::string kept = title.substr(std::min(end, title.size() - 4));
    EXPECT_TRUE(runs[0].line.ends_with(kept)) << runs[0].line;
    ASSERT_TRUE(tooltip) << title;
    EXPECT_EQ(tooltip->text, title);
  }
  EXPECT_EQ(cutTitles, 3);
}

INSTANTIATE_TEST_SUITE_P(LanguagesAndMainDisplays, StatusMenuTextTest,
                         testing::Combine(testing::Values("english", "chinese"),
                                          testing::Range<std::size_t>(0, 3)));

}  // namespace
}  // namespace orvane
