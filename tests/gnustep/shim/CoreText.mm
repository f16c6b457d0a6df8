// Implements Core Text on pango, with Inter Display as the system's font. Without ARC.
#include <pango/pangocairo.h>

#include <algorithm>
#include <cmath>
#include <string_view>

#include "tests/gnustep/shim/DrawingContext.hpp"

@interface OrvaneShimLine : NSObject {
 @public
  PangoLayout* _layout;
  orvane::gnustep::Color _color;
}
@end
@implementation OrvaneShimLine
- (void)dealloc {
  g_object_unref(_layout);
  [super dealloc];
}
@end

namespace {

/// Places glyphs by their unrounded advances, at 72 dpi, so that a point is a unit.
PangoContext* textContext() {
  static PangoContext* const context = [] {
    PangoFontMap* const fonts = pango_cairo_font_map_new();
    pango_cairo_font_map_set_resolution(PANGO_CAIRO_FONT_MAP(fonts), 72);
    PangoContext* const made = pango_font_map_create_context(fonts);
    cairo_font_options_t* const options = cairo_font_options_create();
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
    cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
    pango_cairo_context_set_font_options(made, options);
    cairo_font_options_destroy(options);
    pango_context_set_round_glyph_positions(made, FALSE);
    return made;
  }();
  return context;
}

PangoWeight pangoWeight(double weight) {
  // The limits between AppKit's nine weights.
  constexpr double limits[] = {-0.7, -0.5, -0.2, 0.1, 0.27, 0.35, 0.5, 0.6};
  int hundreds = 1;
  for (const double limit : limits) {
    hundreds += weight > limit ? 1 : 0;
  }
  return static_cast<PangoWeight>(100 * hundreds);
}

}  // namespace

const CFStringRef kCTFontAttributeName = CFSTR("NSFont");
const CFStringRef kCTForegroundColorAttributeName = CFSTR("CTForegroundColor");
const CFStringRef kCTTrackingAttributeName = CFSTR("CTTracking");

CTLineRef CTLineCreateWithAttributedString(CFAttributedStringRef reference) {
  NSAttributedString* const string = (NSAttributedString*)reference;
  OrvaneShimLine* const line = [[OrvaneShimLine alloc] init];
  line->_layout = pango_layout_new(textContext());
  if (string.length == 0) {
    return (CTLineRef)line;
  }
  NSDictionary* const attributes = [string attributesAtIndex:0 effectiveRange:nullptr];
  line->_color = ((OrvaneShimColor*)attributes[(id)kCTForegroundColorAttributeName])->_color;
  NSFont* const font = attributes[(id)kCTFontAttributeName];
  PangoFontDescription* const description = pango_font_description_new();
  pango_font_description_set_family(description, "Inter Display");
  pango_font_description_set_absolute_size(description, font.pointSize * PANGO_SCALE);
  pango_font_description_set_weight(description, pangoWeight(orvane::gnustep::weightOf(font)));
  pango_layout_set_font_description(line->_layout, description);
  pango_font_description_free(description);
  const double tracking = [attributes[(id)kCTTrackingAttributeName] doubleValue];
  PangoAttrList* const spacing = pango_attr_list_new();
  pango_attr_list_insert(spacing, pango_attr_letter_spacing_new(
                                      static_cast<int>(std::lround(tracking * PANGO_SCALE))));
  pango_layout_set_attributes(line->_layout, spacing);
  pango_attr_list_unref(spacing);
  pango_layout_set_text(line->_layout, string.string.UTF8String, -1);
  return (CTLineRef)line;
}
double CTLineGetTypographicBounds(CTLineRef line, CGFloat* ascent, CGFloat* descent,
                                  CGFloat* leading) {
  PangoLayout* const layout = ((OrvaneShimLine*)line)->_layout;
  *ascent = *descent = *leading = 0;
  const PangoFontDescription* const font = pango_layout_get_font_description(layout);
  for (const GSList* link = pango_layout_get_line_readonly(layout, 0)->runs;
       link != nullptr && font != nullptr; link = link->next) {
    auto* const run = static_cast<PangoGlyphItem*>(link->data);
    PangoRectangle reach;
    pango_glyph_string_extents(run->glyphs, run->item->analysis.font, nullptr, &reach);
    double above = static_cast<double>(-reach.y) / PANGO_SCALE;
    double below = static_cast<double>(reach.y + reach.height) / PANGO_SCALE;
    PangoFontDescription* const face = pango_font_describe(run->item->analysis.font);
    const bool isSystemFont =
        std::string_view(pango_font_description_get_family(face)) == "Inter Display";
    pango_font_description_free(face);
    if (!isSystemFont) {
      // Chinese, for which macOS uses PingFang SC.
      const double size = static_cast<double>(pango_font_description_get_size(font)) / PANGO_SCALE;
      above = 1.06 * size;
      below = 0.34 * size;
    }
    *ascent = std::max(*ascent, above);
    *descent = std::max(*descent, below);
  }
  PangoRectangle extents;
  pango_layout_get_extents(layout, nullptr, &extents);
  return static_cast<double>(extents.width) / PANGO_SCALE;
}
void CTLineDraw(CTLineRef reference, CGContextRef context) {
  const OrvaneShimLine* const line = (OrvaneShimLine*)reference;
  OrvaneShimContext* const to = orvane::gnustep::contextOf(context);
  const auto& state = to->_states.back();
  cairo_save(to->_cairo);
  [to useTransform];
  cairo_matrix_t text;
  cairo_matrix_init(&text, state.textTransform.a, state.textTransform.b, state.textTransform.c,
                    state.textTransform.d, to->_textPosition.x, to->_textPosition.y);
  cairo_transform(to->_cairo, &text);
  // Pango's y points downwards.
  cairo_scale(to->_cairo, 1, -1);
  cairo_set_source_rgba(to->_cairo, line->_color.red, line->_color.green, line->_color.blue,
                        line->_color.alpha * state.alpha);
  cairo_move_to(to->_cairo, 0, 0);
  pango_cairo_show_layout_line(to->_cairo, pango_layout_get_line_readonly(line->_layout, 0));
  cairo_new_path(to->_cairo);
  cairo_restore(to->_cairo);
}
CTTypesetterRef CTTypesetterCreateWithAttributedString(CFAttributedStringRef string) {
  return (CTTypesetterRef)CTLineCreateWithAttributedString(string);
}
CFIndex CTTypesetterSuggestLineBreak(CTTypesetterRef reference, CFIndex start, double width) {
  NSCAssert(start == 0, @"the shim breaks only from the start of the text");
  PangoLayout* const layout = ((OrvaneShimLine*)reference)->_layout;
  pango_layout_set_wrap(layout, PANGO_WRAP_WORD_CHAR);
  pango_layout_set_width(layout, static_cast<int>(width * PANGO_SCALE));
  const char* const text = pango_layout_get_text(layout);
  const char* end = text + pango_layout_get_line_readonly(layout, 0)->length;
  // Trailing spaces belong to the line.
  while (*end == ' ') {
    ++end;
  }
  CFIndex units = 0;
  for (const char* at = text; at < end; at = g_utf8_next_char(at)) {
    units += g_utf8_get_char(at) > 0xFFFF ? 2 : 1;
  }
  return units;
}
