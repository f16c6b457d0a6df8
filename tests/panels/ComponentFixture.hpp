// ComponentFixture draws a component of a panel on the recording canvas with the synthetic font.
#pragma once

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
  void appear(bool isDark, bool increasesContrast = false) {
    test.appear({.dark = isDark, .increaseContrast = increasesContrast});
  }
  /// These move or press the pointer, or take it away, and wait for the end of all animations.
  void hover(ui::Point place) {
    leave();
    test.host->pointerMoved(place);
    rest();
  }
  void hold(ui::Point place) {
    hover(place);
    test.host->pointerDown(place);
    rest();
  }
  void leave() {
    test.host->pointerUp({-1, -1});
    test.host->pointerExited();
    rest();
  }
  void rest() {
    for (int frame = 0; frame < 3; ++frame) {
      advance(10);
    }
  }
  /// Updates the layout and lets time pass.
  void advance(double seconds) {
    test.host->layoutIfNeeded();
    now_ += seconds;
    test.at(now_);
  }
  [[nodiscard]] std::string drawing() const { return test.drawing(); }
  [[nodiscard]] bool draws(const std::string& part) const { return test.draws(part); }
  /// The number after the last `mark` of the drawing; -1 without one.
  [[nodiscard]] double lastNumberAfter(const std::string& mark) const {
    const std::string text = drawing();
    const std::size_t place = text.rfind(mark);
    return place == std::string::npos ? -1 : std::stod(text.substr(place + mark.size()));
  }

  ui::TestHost test;

 private:
  double now_ = 0;
};

}  // namespace orvane
