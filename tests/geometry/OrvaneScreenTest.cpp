// A display's identifiers and its frame in global coordinates.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "Orvane/geometry/OrvaneScreen.hpp"
#include "tests/support/MachineFixture.hpp"
#include "tests/support/TestDisplays.hpp"

namespace orvane {
namespace {

using namespace OrvaneScreen;
using desk::attach;

const char* const colorSpaceEnding = "Optional(8)-Optional(\"NSCalibratedRGBColorSpace\")";

/// The screen to which the identifier belongs.
std::optional<appkit::Screen> screenNamed(const std::string& identifier) {
  const std::vector<appkit::Screen> screens = appkit::Screen::screens();
  const auto index = orvaneFindScreen(identifier, screens);
  return index ? std::optional(screens.at(*index)) : std::nullopt;
}

class OrvaneScreenTest : public desk::MachineFixture {
 protected:
  static appkit::Screen screen(std::size_t index = 0) {
    return appkit::Screen::screens().at(index);
  }
};

TEST_F(OrvaneScreenTest, TheDisplayIDIsTheScreenNumberEvenIfItIsTheGreatest) {
  attach(machine, desk::displayOf(4294967295, "Far", {{0, 0}, {100, 100}}));
  EXPECT_EQ(orvaneDisplayID(screen()), 4294967295U);
  EXPECT_TRUE(orvaneMatchingIdentifiers(screen()).contains("4294967295"));
}

TEST_F(OrvaneScreenTest, TheLegacyIdentifierShowsSizeDepthAndColourSpace) {
  desk::Display deep = desk::displayOf(77, "Any", {{5, 7}, {2560.5, 1440.25}});
  deep.bitsPerSample = 10;
  deep.colorSpace = "NSDeviceRGBColorSpace";
  attach(machine, deep);
  desk::Display unknown = desk::laptop();
  unknown.bitsPerSample = std::nullopt;
  unknown.colorSpace = std::nullopt;
  attach(machine, unknown);
  attach(machine, desk::displayOf(3, "Any", {{0, 0}, {0.1, 1366.0625}}));
  EXPECT_EQ(orvaneLegacyIdentifier(screen(0)),
            "Optional(77)-2560.5-1440.25-Optional(10)-Optional(\"NSDeviceRGBColorSpace\")");
  EXPECT_EQ(orvaneLegacyIdentifier(screen(1)), "Optional(1)-1920.0-1080.0-nil-nil");
  EXPECT_EQ(orvaneLegacyIdentifier(screen(2)),
            std::string("Optional(3)-0.1-1366.0625-") + colorSpaceEnding)
      << "the fewest decimals that are exact";
}

TEST_F(OrvaneScreenTest, IdentifiersAreComparedExactly) {
  desk::Display display = desk::laptop();
  display.uuid = "ABCDEF00-0000-4000-8000-00000000000A";
  attach(machine, display);
  EXPECT_TRUE(screenNamed("ABCDEF00-0000-4000-8000-00000000000A"));
  EXPECT_FALSE(screenNamed("abcdef00-0000-4000-8000-00000000000a"));
  EXPECT_FALSE(screenNamed(" 1"));
  EXPECT_FALSE(screenNamed("01"));
  EXPECT_FALSE(screenNamed(""));
}

TEST_F(OrvaneScreenTest, WithoutAnyScreenInTheListAFrameIsUnchanged) {
  attach(machine, desk::displayOf(1, "Gone soon", {{3, 5}, {1512, 982}}));
  const appkit::Screen kept = screen();
  desk::detach(machine, 1);
  EXPECT_TRUE(
      CGRectEqualToRect(orvaneCGFrame(kept, appkit::Screen::screens()), {{3, 5}, {1512, 982}}));
}

// Properties.

struct Spec {
  int number;
  int uuid;
  bool hasNumber;
  int size;
};

std::ostream& operator<<(std::ostream& out, const Spec& spec) {
  return out << "{number " << spec.number << " uuid " << spec.uuid << " hasNumber "
             << spec.hasNumber << " size " << spec.size << "}";
}

desk::Display displayOf(const Spec& spec) {
  desk::Display display = desk::displayOf(static_cast<std::uint32_t>(spec.number), "Any",
                                          {{0, 0}, {100.0 + spec.size, 50}});
  if (spec.uuid > 0) {
    // Two displays may claim the same UUID.
    display.uuid = desk::uuidNamed(static_cast<char>('0' + spec.uuid));
  }
  display.hasNumberInDescription = spec.hasNumber;
  return display;
}

/// All identifiers of the display, composed by hand.
std::set<std::string> namesOf(const Spec& spec) {
  const std::string number = std::to_string(spec.number);
  std::string legacy = spec.hasNumber ? "Optional(" + number + ")" : "nil";
  legacy += "-" + std::to_string(100 + spec.size) + ".0-50.0-" + colorSpaceEnding;
  std::set<std::string> names{legacy};
  if (spec.hasNumber) {
    names.insert(number);
    if (spec.uuid > 0) {
      names.insert("00000000-0000-4000-8000-00000000000" + std::to_string(spec.uuid));
    }
  }
  return names;
}

RC_GTEST_PROP(OrvaneScreenProperty, AnIdentifierFindsTheFirstDisplayThatItNames, ()) {
  const auto genSpec = rc::gen::construct<Spec>(rc::gen::inRange(1, 8), rc::gen::inRange(0, 4),
                                                rc::gen::arbitrary<bool>(), rc::gen::inRange(0, 3));
  std::vector<Spec> specs = *rc::gen::container<std::vector<Spec>>(genSpec);
  std::set<int> numbers;
  std::erase_if(specs, [&](const Spec& spec) { return !numbers.insert(spec.number).second; });
  desk::MachineScope scope;
  scope->process.start();
  std::set<std::string> asked{"", "0", "nil", "99"};
  for (const Spec& spec : specs) {
    attach(scope.machine(), displayOf(spec));
    asked.merge(namesOf(spec));
  }
  for (const std::string& identifier : asked) {
    const auto expected = std::ranges::find_if(
        specs, [&](const Spec& spec) { return namesOf(spec).contains(identifier); });
    const auto found = screenNamed(identifier);
    RC_ASSERT(found.has_value() == (expected != specs.end()));
    if (found) {
      RC_ASSERT(orvaneMatchingIdentifiers(*found) == namesOf(*expected));
      RC_ASSERT(found->frame().size.width == 100.0 + expected->size);
    }
  }
  RC_ASSERT(scope.end().empty());
}

}  // namespace
}  // namespace orvane
