// Measures and breaks text with Core Text.
#pragma once

#import <Foundation/Foundation.h>

#include "Orvane/base/CFRef.hpp"
#include "Orvane/platform/Quartz.hpp"
#include "Orvane/ui/draw/Appearance.hpp"
#include "Orvane/ui/draw/TextMeasurer.hpp"

namespace orvane::appkit {

/// A line of text for measuring and drawing. The colour matters only for drawing.
[[nodiscard]] CFRef<CTLineRef> textLine(NSString* _Nonnull text, const ui::Font& font,
                                        const ui::Rgba& color = {});

class CoreTextMeasurer : public ui::TextMeasurer {
 public:
  ui::TextLayout layout(const std::string& text, const ui::Font& font, double maximumWidth,
                        ui::LineLimit limit) override;
};

}  // namespace orvane::appkit
