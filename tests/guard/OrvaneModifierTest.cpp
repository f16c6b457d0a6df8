// The four unlock modifiers: their order, stored values and bits.
#include <array>
#include <cstdint>
#include <string_view>

#include <gtest/gtest.h>

#include "Orvane/guard/OrvaneModifier.hpp"

namespace orvane {
namespace {

struct Expected {
  OrvaneModifier modifier;
  std::string_view rawValue;
  std::uint64_t mask;
};

constexpr std::array<Expected, 4> inOrder = {{
    {OrvaneModifier::option, "option", 0x80000},
    {OrvaneModifier::control, "control", 0x40000},
    {OrvaneModifier::shift, "shift", 0x20000},
    {OrvaneModifier::command, "command", 0x100000},
}};

TEST(OrvaneModifierTest, TheCasesComeInOrderWithTheirRawValuesAndMasks) {
  ASSERT_EQ(OrvaneModifier::allCases.size(), inOrder.size());
  for (std::size_t index = 0; index < inOrder.size(); ++index) {
    const OrvaneModifier modifier = OrvaneModifier::allCases[index];
    const Expected& expected = inOrder[index];
    EXPECT_EQ(modifier, expected.modifier);
    EXPECT_EQ(modifier.rawValue(), expected.rawValue);
    EXPECT_EQ(modifier.flagMask(), expected.mask);
    EXPECT_EQ(OrvaneModifier::fromRawValue(expected.rawValue), expected.modifier);
  }
}

TEST(OrvaneModifierTest, OtherTextIsReadAsOption) {
  for (const std::string_view text : {"", "Option", "CONTROL", " shift", "cmd", "control\n"}) {
    EXPECT_EQ(OrvaneModifier::fromRawValue(text), OrvaneModifier::option) << text;
  }
}

TEST(OrvaneModifierTest, AKeyIsHeldWhenItsBitIsSet) {
  for (std::uint64_t flags = 0; flags <= 0x1F0000; flags += 0x10000) {
    for (const Expected& expected : inOrder) {
      EXPECT_EQ(expected.modifier.isHeld(static_cast<CGEventFlags>(flags)),
                (flags / expected.mask) % 2 == 1)
          << expected.rawValue << " " << flags;
    }
  }
}

}  // namespace
}  // namespace orvane
