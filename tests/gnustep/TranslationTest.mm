// Tests of the translation between the kit's values and AppKit's: keys, colours, weights, roles.
#include <map>
#include <string>
#include <vector>

#include "Orvane/platform/appkit/Workspace.hpp"
#include "Orvane/ui/draw/Color.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "macos/appkit/Strings.hpp"
#include "macos/canvas/CoreTextMeasurer.hpp"
#include "macos/canvas/SystemColors.hpp"
#include "macos/canvas/SystemFont.hpp"
#include "macos/hosting/FileDrag.hpp"
#include "macos/hosting/KeyTranslation.hpp"
#include "tests/gnustep/MacHalfFixture.hpp"
#include "tests/gnustep/shim/World.hpp"

namespace orvane {
namespace {

class Translation : public MacHalfFixture {
 protected:
  static ui::Appearance looking(bool isDark) {
    ui::Appearance appearance;
    appearance.dark = isDark;
    return appearance;
  }
};

TEST_F(Translation, EveryKeyOfTheKitHasAMacKey) {
  const std::vector<std::pair<unichar, ui::Key>> keys{{NSTabCharacter, ui::Key::tab},
                                                      {NSBackTabCharacter, ui::Key::tab},
                                                      {NSCarriageReturnCharacter, ui::Key::enter},
                                                      {NSEnterCharacter, ui::Key::enter},
                                                      {' ', ui::Key::space},
                                                      {0x1B, ui::Key::escape},
                                                      {NSLeftArrowFunctionKey, ui::Key::left},
                                                      {NSRightArrowFunctionKey, ui::Key::right},
                                                      {NSUpArrowFunctionKey, ui::Key::up},
                                                      {NSDownArrowFunctionKey, ui::Key::down},
                                                      {'W', ui::Key::character}};
  for (const auto& [character, key] : keys) {
    const auto event = appkit::keyEventFrom(keyEvent(nil, functionKey(character), NSShiftKeyMask));
    ASSERT_TRUE(event);
    EXPECT_EQ(event->key, key) << character;
    EXPECT_TRUE(event->modifiers.shift);
    EXPECT_FALSE(event->modifiers.command);
    EXPECT_EQ(event->characters, key == ui::Key::character ? "w" : "");
  }
  EXPECT_FALSE(appkit::keyEventFrom(keyEvent(nil, @"")));
  EXPECT_FALSE(appkit::keyEventFrom(mouseEvent(nil, NSLeftMouseDown, 0, 0)));
  EXPECT_FALSE(appkit::isRepeatedActivation(mouseEvent(nil, NSLeftMouseDown, 0, 0)));
  EXPECT_FALSE(appkit::isRepeatedActivation(keyEvent(nil, @"\t", 0, YES)));
  EXPECT_TRUE(appkit::isRepeatedActivation(keyEvent(nil, @" ", 0, YES)));
}

TEST_F(Translation, WithCommandAKeyHasItsLatinCharacterOnOtherLayouts) {
  const auto russian = [](NSUInteger modifiers) {
    NSEvent* const event = [NSEvent keyEventWithType:NSKeyDown
                                            location:NSZeroPoint
                                       modifierFlags:modifiers
                                           timestamp:0
                                        windowNumber:0
                                             context:nil
                                          characters:@"w"
                         charactersIgnoringModifiers:@"\u0446"
                                           isARepeat:NO
                                             keyCode:0];
    return appkit::keyEventFrom(event);
  };
  EXPECT_TRUE(ui::KeyboardShortcut::command("w").matches(*russian(NSCommandKeyMask)));
  EXPECT_EQ(russian(NSAlternateKeyMask)->characters, "ц");
}

TEST_F(Translation, ASystemColourIsThatOfTheRequestedAppearance) {
  const auto expectColor = [](ui::SystemColor name, bool isDark, int red, int green, int blue) {
    const ui::Rgba color = appkit::systemColor(name, looking(isDark));
    EXPECT_NEAR(color.red * 255, red, 1);
    EXPECT_NEAR(color.green * 255, green, 1);
    EXPECT_NEAR(color.blue * 255, blue, 1);
  };
  // The current drawing appearance is the light one.
  expectColor(ui::SystemColor::red, false, 0xFF, 0x3B, 0x30);
  expectColor(ui::SystemColor::red, true, 0xFF, 0x45, 0x3A);
  expectColor(ui::SystemColor::green, true, 0x30, 0xD1, 0x58);
  expectColor(ui::SystemColor::orange, true, 0xFF, 0x9F, 0x0A);
  expectColor(ui::SystemColor::blue, true, 0x0A, 0x84, 0xFF);
  expectColor(ui::SystemColor::gray, true, 0x98, 0x98, 0x9D);
  expectColor(ui::SystemColor::accent, true, 0x0A, 0x84, 0xFF);
  expectColor(ui::SystemColor::primary, true, 0xFF, 0xFF, 0xFF);
  expectColor(ui::SystemColor::tertiary, false, 0, 0, 0);
  expectColor(ui::SystemColor::windowBackground, true, 0x1E, 0x1E, 0x1E);
}

TEST_F(Translation, SomeColoursAreTheKitsOwn) {
  const ui::Rgba chosen{0.1, 0.2, 0.3, 1};
  ui::Appearance appearance;
  appearance.accent = chosen;
  EXPECT_EQ(appkit::systemColor(ui::SystemColor::accent, appearance), chosen);
  EXPECT_EQ(appkit::systemColor(ui::SystemColor::secondary, {}),
            ui::standardColor(ui::SystemColor::secondary, {}));
  ui::Appearance contrast;
  contrast.increaseContrast = true;
  EXPECT_EQ(appkit::systemColor(ui::SystemColor::secondary, contrast).alpha, 128 / 255.0);
  EXPECT_EQ(appkit::systemColor(ui::SystemColor::fixed, {}),
            ui::standardColor(ui::SystemColor::fixed, {}));
}

TEST_F(Translation, EveryWeightIsHeavierThanTheOneBefore) {
  const std::vector<ui::Weight> weights{
      ui::Weight::ultraLight, ui::Weight::thin,   ui::Weight::light,
      ui::Weight::regular,    ui::Weight::medium, ui::Weight::semibold,
      ui::Weight::bold,       ui::Weight::heavy,  ui::Weight::black};
  for (std::size_t index = 1; index < weights.size(); ++index) {
    EXPECT_LT(appkit::fontWeight(weights[index - 1]), appkit::fontWeight(weights[index]));
  }
  EXPECT_EQ(appkit::fontWeight(ui::Weight::regular), NSFontWeightRegular);
}

TEST_F(Translation, EveryRoleHasItsNameAndItsValue) {
  const std::vector<std::pair<ui::Role, NSString*>> roles{
      {ui::Role::group, NSAccessibilityGroupRole},
      {ui::Role::staticText, NSAccessibilityStaticTextRole},
      {ui::Role::heading, @"AXHeading"},
      {ui::Role::image, NSAccessibilityImageRole},
      {ui::Role::button, NSAccessibilityButtonRole},
      {ui::Role::toggle, NSAccessibilityCheckBoxRole},
      {ui::Role::radioButton, NSAccessibilityRadioButtonRole},
      {ui::Role::popUpButton, NSAccessibilityPopUpButtonRole},
      {ui::Role::scrollArea, NSAccessibilityScrollAreaRole}};
  for (const auto& [role, name] : roles) {
    appkit::Window window = show([shown = role](const ui::Environment&) -> ui::View {
      return ui::Rectangle()
          .frame(200, 50)
          .accessibilityLabel("label")
          .accessibilityRole(shown)
          .accessibilityValue("1")
          .accessibilitySelected(true);
    });
    NSAccessibilityElement* const element = [hostOf(window) accessibilityChildren].firstObject;
    EXPECT_TRUE([element.accessibilityRole isEqual:name]) << name.UTF8String;
    const bool isText = role == ui::Role::staticText;
    EXPECT_STREQ([element.accessibilityValue description].UTF8String, isText ? "label, 1" : "1");
    const std::string label = role == ui::Role::radioButton ? "label, 1" : "label";
    EXPECT_EQ(appkit::utf8String(element.accessibilityLabel), isText ? "" : label);
    EXPECT_EQ(element.accessibilitySubrole != nil, role == ui::Role::toggle);
    window.close();
  }
}

TEST_F(Translation, WhetherALinkWasOpenedIsReportedOnTheMainThread) {
  int answers = 0;
  gnustep::world().refusedLinkPrefix = "refused:";
  int expected = 0;
  for (const char* const link : {"refused:link", "a:link"}) {
    appkit::Workspace::openURL(link, [&](bool isOpened) {
      EXPECT_TRUE(NSThread.isMainThread);
      EXPECT_EQ(isOpened, gnustep::world().openedLinks.size() == 1);
      ++answers;
    });
    ++expected;
    EXPECT_TRUE(isSoon([&] { return answers == expected; }));
  }
}

TEST_F(Translation, ADragWithoutAFileDoesNotBegin) {
  appkit::Window window = show([](const ui::Environment&) { return ui::View(); });
  click(nativeOf(window), 10, 10);
  appkit::beginFileDrag({.fileUrl = "\xFF", .imageName = "", .frame = {}}, hostOf(window));
  EXPECT_FALSE(gnustep::world().drag);
  window.close();
}

}  // namespace
}  // namespace orvane
