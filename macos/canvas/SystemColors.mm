// The system's semantic colours and the settings that affect them.
#include "macos/canvas/SystemColors.hpp"

#include <optional>

#include "Orvane/ui/draw/Color.hpp"

namespace orvane::appkit {
namespace {

bool isDark(NSAppearance* appearance) {
  NSAppearanceName const match = [appearance
      bestMatchFromAppearancesWithNames:@[ NSAppearanceNameAqua, NSAppearanceNameDarkAqua ]];
  return [match isEqualToString:NSAppearanceNameDarkAqua];
}

NSColor* namedColor(ui::SystemColor name) {
  switch (name) {
    case ui::SystemColor::fixed:
      return nil;
    case ui::SystemColor::accent:
      return NSColor.controlAccentColor;
    case ui::SystemColor::primary:
      return NSColor.labelColor;
    case ui::SystemColor::secondary:
      return NSColor.secondaryLabelColor;
    case ui::SystemColor::tertiary:
      return NSColor.tertiaryLabelColor;
    case ui::SystemColor::windowBackground:
      return NSColor.windowBackgroundColor;
    case ui::SystemColor::red:
      return NSColor.systemRedColor;
    case ui::SystemColor::green:
      return NSColor.systemGreenColor;
    case ui::SystemColor::orange:
      return NSColor.systemOrangeColor;
    case ui::SystemColor::blue:
      return NSColor.systemBlueColor;
    case ui::SystemColor::gray:
      return NSColor.systemGrayColor;
  }
  return nil;
}

std::optional<ui::Rgba> components(NSColor* color) {
  // Reading the components of a colour in another colour space, or of a named one, is an error.
  NSColor* const converted = [color colorUsingColorSpace:NSColorSpace.sRGBColorSpace];
  if (converted == nil) {
    return std::nullopt;
  }
  return ui::Rgba{converted.redComponent, converted.greenComponent, converted.blueComponent,
                  converted.alphaComponent};
}

}  // namespace

ui::Appearance appearanceFrom(NSAppearance* appearance) {
  NSWorkspace* const workspace = NSWorkspace.sharedWorkspace;
  return {isDark(appearance), std::nullopt,
          static_cast<bool>(workspace.accessibilityDisplayShouldIncreaseContrast),
          static_cast<bool>(workspace.accessibilityDisplayShouldReduceMotion)};
}

ui::Rgba systemColor(ui::SystemColor name, const ui::Appearance& appearance) {
  if (name == ui::SystemColor::accent && appearance.accent) {
    return *appearance.accent;
  }
  // The system strengthens its secondary colour by vibrancy, which drawn text lacks.
  if (name == ui::SystemColor::secondary && !appearance.increaseContrast) {
    return ui::standardColor(name, appearance);
  }
  NSAppearance* drawing = NSAppearance.currentDrawingAppearance;
  if (isDark(drawing) != appearance.dark) {
    drawing = [NSAppearance
        appearanceNamed:appearance.dark ? NSAppearanceNameDarkAqua : NSAppearanceNameAqua];
  }
  __block std::optional<ui::Rgba> resolved;
  [drawing performAsCurrentDrawingAppearance:^{
    resolved = components(namedColor(name));
  }];
  return resolved.value_or(ui::standardColor(name, appearance));
}

}  // namespace orvane::appkit
