// The system's font for a size and weight of the view kit.
#include "macos/canvas/SystemFont.hpp"

namespace orvane::appkit {

NSFontWeight fontWeight(ui::Weight weight) {
  switch (weight) {
    case ui::Weight::ultraLight:
      return NSFontWeightUltraLight;
    case ui::Weight::thin:
      return NSFontWeightThin;
    case ui::Weight::light:
      return NSFontWeightLight;
    case ui::Weight::regular:
      return NSFontWeightRegular;
    case ui::Weight::medium:
      return NSFontWeightMedium;
    case ui::Weight::semibold:
      return NSFontWeightSemibold;
    case ui::Weight::bold:
      return NSFontWeightBold;
    case ui::Weight::heavy:
      return NSFontWeightHeavy;
    case ui::Weight::black:
      return NSFontWeightBlack;
  }
  return NSFontWeightRegular;
}

NSFont* systemFont(const ui::Font& font) {
  return [NSFont systemFontOfSize:font.size weight:fontWeight(font.weight)];
}

}  // namespace orvane::appkit
