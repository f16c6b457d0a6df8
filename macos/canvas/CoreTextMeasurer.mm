// Measures and breaks text with Core Text.
#include "macos/canvas/CoreTextMeasurer.hpp"

#import <AppKit/AppKit.h>
#import <CoreText/CoreText.h>

#include <algorithm>
#include <vector>

#include "Orvane/ui/draw/Truncation.hpp"
#include "macos/appkit/Strings.hpp"
#include "macos/canvas/SystemFont.hpp"

namespace orvane::appkit {
namespace {

NSAttributedString* attributed(NSString* text, const ui::Font& font, const ui::Rgba& color) {
  const auto painted =
      CFRef<CGColorRef>::owning(CGColorCreateSRGB(color.red, color.green, color.blue, color.alpha));
  NSMutableDictionary* const attributes = [NSMutableDictionary dictionary];
  attributes[(id)kCTFontAttributeName] = systemFont(font);
  attributes[(id)kCTForegroundColorAttributeName] = (__bridge id)painted.get();
  // Even a tracking of zero disables ligatures.
  if (font.tracking != 0) {
    attributes[(id)kCTTrackingAttributeName] = @(font.tracking);
  }
  return [[NSAttributedString alloc] initWithString:text attributes:attributes];
}

struct LineBounds {
  CGFloat width = 0;
  CGFloat ascent = 0;
  CGFloat descent = 0;
  CGFloat leading = 0;
};

/// Includes the fallback fonts for characters that the system font lacks, such as Chinese.
LineBounds lineBounds(NSString* text, const ui::Font& font) {
  LineBounds bounds;
  bounds.width = CTLineGetTypographicBounds(textLine(text, font).get(), &bounds.ascent,
                                            &bounds.descent, &bounds.leading);
  return bounds;
}

double lineWidth(NSString* text, const ui::Font& font) {
  return lineBounds(text, font).width;
}

NSString* withoutTrailingBlanks(NSString* text) {
  NSUInteger length = text.length;
  while (length > 0 && [NSCharacterSet.whitespaceCharacterSet
                           characterIsMember:[text characterAtIndex:length - 1]]) {
    --length;
  }
  return [text substringToIndex:length];
}

/// The boundaries of whole characters, in bytes of UTF-8.
std::vector<std::size_t> characterPlaces(NSString* text) {
  std::vector<std::size_t> places{0};
  for (NSUInteger at = 0; at < text.length;) {
    const auto character = [text rangeOfComposedCharacterSequenceAtIndex:at];
    places.push_back(places.back() + utf8String([text substringWithRange:character]).size());
    at = NSMaxRange(character);
  }
  return places;
}

NSString* truncated(NSString* text, const ui::Font& font, double maximumWidth,
                    ui::TruncationMode mode) {
  return foundationString(ui::truncatedLine(
      utf8String(text), characterPlaces(text), mode, maximumWidth,
      [&](const std::string& part) { return lineWidth(foundationString(part), font); }));
}

struct BrokenLine {
  NSString* text;
  /// The paragraph from this line to its end.
  NSString* rest;
};

void breakParagraph(NSString* paragraph, const ui::Font& font, double maximumWidth,
                    std::vector<BrokenLine>& lines) {
  NSString* rest = paragraph;
  while (lineWidth(rest, font) > maximumWidth) {
    const auto typesetter = CFRef<CTTypesetterRef>::owning(CTTypesetterCreateWithAttributedString(
        (__bridge CFAttributedStringRef)attributed(rest, font, {})));
    const CFIndex suggested = CTTypesetterSuggestLineBreak(typesetter.get(), 0, maximumWidth);
    // Even the narrowest line holds one character.
    const NSUInteger minimum = NSMaxRange([rest rangeOfComposedCharacterSequenceAtIndex:0]);
    const NSUInteger end =
        std::clamp(static_cast<NSUInteger>(std::max<CFIndex>(0, suggested)), minimum, rest.length);
    if (end == rest.length) {
      break;
    }
    lines.push_back({withoutTrailingBlanks([rest substringToIndex:end]), rest});
    rest = [rest substringFromIndex:end];
  }
  lines.push_back({rest, rest});
}

}  // namespace

CFRef<CTLineRef> textLine(NSString* text, const ui::Font& font, const ui::Rgba& color) {
  return CFRef<CTLineRef>::owning(CTLineCreateWithAttributedString(
      (__bridge CFAttributedStringRef)attributed(text, font, color)));
}

ui::TextLayout CoreTextMeasurer::layout(const std::string& text, const ui::Font& font,
                                        double maximumWidth, ui::LineLimit limit) {
  const double allowed = maximumWidth > 0 ? maximumWidth : 0;
  std::vector<BrokenLine> lines;
  NSString* const whole = foundationString(text);
  for (NSString* paragraph in [whole == nil ? @"" : whole componentsSeparatedByString:@"\n"]) {
    breakParagraph(paragraph, font, allowed, lines);
  }

  ui::TextLayout layout;
  const auto maximum = static_cast<std::size_t>(std::max(0, limit.lines));
  if (maximum > 0 && lines.size() > maximum) {
    layout.isTruncated = true;
    lines.resize(maximum);
    lines.back().text = truncated(lines.back().rest, font, allowed, limit.truncation);
  }
  NSFont* const platformFont = systemFont(font);
  layout.ascent = platformFont.ascender;
  double descent = platformFont.leading - platformFont.descender;
  for (const BrokenLine& line : lines) {
    const LineBounds bounds = lineBounds(line.text, font);
    layout.lines.push_back({utf8String(line.text), bounds.width});
    layout.ascent = std::max(layout.ascent, bounds.ascent);
    descent = std::max(descent, bounds.descent + bounds.leading);
  }
  layout.lineHeight = ui::lineHeightFor(layout.ascent, descent);
  return layout;
}

}  // namespace orvane::appkit
