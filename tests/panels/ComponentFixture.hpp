// One component of a panel, drawn by the recording canvas with the synthetic font.
#pragma once

#include <cstdio>
#include <string>

#include <gtest/gtest.h>

#include "tests/ui/TestHost.hpp"

namespace orvane {

class ComponentFixture : public testing::Test {
 protected:
  void show(const ui::View& view, ui::Size size) {
    test.host->setSize(size);
    test.show(view);
  }
  void appear(bool isDark, bool isContrastIncreased = false) {
    ui::Appearance appearance;
    appearance.dark = isDark;
    appearance.increaseContrast = isContrastIncreased;
    test.host->setAppearance(appearance);
    test.host->layoutIfNeeded();
  }
  void hover(ui::Point place) {
    test.host->pointerMoved(place);
    rest();
  }
  void hold(ui::Point place) {
    test.host->pointerMoved(place);
    test.host->pointerDown(place);
    rest();
  }
  void rest() {
    test.host->layoutIfNeeded();
    for (int frame = 0; frame < 3; ++frame) {
      now_ += 10;
      test.at(now_);
    }
  }
  /// Lays out what has changed, and goes on from there by so many seconds.
  void advance(double seconds) {
    test.host->layoutIfNeeded();
    now_ += seconds;
    test.at(now_);
  }
  /// As the recording canvas writes it: "0 0 48 48".
  [[nodiscard]] static std::string numbers(const ui::Rect& rect) {
    char text[128];
    std::snprintf(text, sizeof text, "%g %g %g %g", rect.x, rect.y, rect.width, rect.height);
    return text;
  }
  [[nodiscard]] std::string drawing() const { return test.drawing(); }
  [[nodiscard]] bool draws(const std::string& part) const {
    return drawing().find(part) != std::string::npos;
  }

  ui::TestHost test;

 private:
  double now_ = 0;
};

}  // namespace orvane
