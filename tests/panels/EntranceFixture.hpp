// EntranceFixture holds what enters a panel as it opens against the closed form of its curve.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/panels/Motion.hpp"
#include "tests/panels/PanelFixture.hpp"

namespace orvane {

class EntranceFixture : public PanelFixture {
 protected:
  /// What enters, as it is at some moment: the tops of some parts, and the opacity of one.
  struct Sight {
    std::vector<double> tops;
    double opacity = 0;
  };

  /// Where the heading begins; -1 when the panel has none of that text.
  [[nodiscard]] double headingTop(const std::string& label, const char* panel) {
    for (const ui::SemanticsNode& node : withRole(ui::Role::heading, panel)) {
      if (node.label == label) {
        return node.frame.y;
      }
    }
    return -1;
  }

  /// What `look` sees from now on moves up by `offset` points and appears, by an ease-out of so
  /// many seconds, and then rests.
  void expectEntrance(const char* panel, double seconds, double offset,
                      const std::function<Sight()>& look) {
    std::vector<double> progresses;
    std::vector<Sight> sights;
    double elapsed = 0;
    for (const double parameter : {0.0, 0.3, 0.6, 0.9, 1.0}) {
      const motion::Moment moment = motion::easeOut(parameter);
      machine.advance(moment.share * seconds - elapsed);
      elapsed = moment.share * seconds;
      progresses.push_back(moment.progress);
      sights.push_back(look());
    }
    machine.advance(2);
    EXPECT_FALSE(window(panel)->content->hasFrames());
    const Sight end = look();
    EXPECT_EQ(end.opacity, 1);
    for (std::size_t index = 0; index < sights.size(); ++index) {
      const double progress = progresses[index];
      SCOPED_TRACE("progress " + std::to_string(progress));
      EXPECT_NEAR(sights[index].opacity, progress, 0.001);
      for (std::size_t place = 0; place < end.tops.size(); ++place) {
        EXPECT_NEAR(sights[index].tops[place] - end.tops[place], offset * (1 - progress), 1e-6)
            << place;
      }
    }
  }
};

}  // namespace orvane
