// The fingerprint by which a changed drawing is repainted.
#include <gtest/gtest.h>

#include "Orvane/ui/draw/InkProbe.hpp"

namespace orvane::ui {
namespace {

std::uint64_t fingerprintOf(const Font& font) {
  InkProbe probe({0, 0, 40, 20});
  probe.text("line", font, {0, 0, 0, 1}, {0, 15});
  return probe.fingerprint();
}

TEST(InkProbeTest, EveryPropertyOfAFontChangesTheFingerprint) {
  const Font font = Font::system(13);
  EXPECT_EQ(fingerprintOf(font), fingerprintOf(Font::system(13)));
  EXPECT_NE(fingerprintOf(font), fingerprintOf(Font::system(14)));
  EXPECT_NE(fingerprintOf(font), fingerprintOf(font.bold()));
  Font tightened = font;
  tightened.tracking = -0.1;
  EXPECT_NE(fingerprintOf(font), fingerprintOf(tightened));
}

}  // namespace
}  // namespace orvane::ui
