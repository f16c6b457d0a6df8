// The rules for every text and control of the application, checked on all specimens of the gallery
// in both languages and appearances and in every accent colour, with and without Increase Contrast.
#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include "Orvane/ui/draw/Color.hpp"
#include "desk/canvas/ImageSurface.hpp"
#include "desk/hand/FindControl.hpp"
#include "showroom/desktop/WallpaperArt.hpp"
#include "showroom/gallery/SheetBackground.hpp"
#include "showroom/gallery/Specimen.hpp"
#include "tests/panels/TextRun.hpp"
#include "tests/support/Contrast.hpp"
#include "tests/support/MachineFixture.hpp"

namespace orvane::showroom {
namespace {

const std::string ellipsis = "…";
constexpr std::array wallpapers{desk::Appearance::Wallpaper::white,
                                desk::Appearance::Wallpaper::black,
                                desk::Appearance::Wallpaper::busy};

/// The system's choices: none, purple, pink, red, orange, yellow and green.
constexpr std::array<std::optional<ui::Rgba>, 7> accents{
    std::nullopt,
    ui::Rgba{149 / 255.0, 61 / 255.0, 150 / 255.0, 1},
    ui::Rgba{247 / 255.0, 79 / 255.0, 158 / 255.0, 1},
    ui::Rgba{224 / 255.0, 56 / 255.0, 62 / 255.0, 1},
    ui::Rgba{247 / 255.0, 130 / 255.0, 27 / 255.0, 1},
    ui::Rgba{255 / 255.0, 199 / 255.0, 38 / 255.0, 1},
    ui::Rgba{98 / 255.0, 186 / 255.0, 70 / 255.0, 1}};

/// Paints everything except texts.
class TextlessCanvas : public desk::CairoCanvas {
 public:
  using desk::CairoCanvas::CairoCanvas;
  void text(const std::string& /*line*/, const ui::Font& /*font*/, const ui::Rgba& /*color*/,
            ui::Point /*baseline*/) override {}
};

/// `color`, of any alpha, over the opaque `ground`.
ui::Rgba over(const ui::Rgba& color, const ui::Rgba& ground) {
  const auto mixed = [alpha = color.alpha](double above, double below) {
    return above * alpha + below * (1 - alpha);
  };
  return {mixed(color.red, ground.red), mixed(color.green, ground.green),
          mixed(color.blue, ground.blue), 1};
}

/// From 0, for greys, to 1.
double chroma(const ui::Rgba& color) {
  return std::max({color.red, color.green, color.blue}) -
         std::min({color.red, color.green, color.blue});
}

/// In degrees; meaningless for greys.
double hue(const ui::Rgba& color) {
  const double degrees = std::atan2(std::sqrt(3) * (color.green - color.blue),
                                    2 * color.red - color.green - color.blue) *
                         180 / 3.14159265358979;
  return degrees < 0 ? degrees + 360 : degrees;
}

bool isAccentColored(const ui::Rgba& color, const ui::Appearance& appearance) {
  const ui::Rgba accent = ui::standardColor(ui::SystemColor::accent, appearance);
  return chroma(color) > 0.05 && std::abs(hue(color) - hue(accent)) < 8;
}

/// White or black on a fill in the accent colour or red.
bool isOnColoredFill(const ui::Rgba& color, const ui::Rgba& ground) {
  return chroma(color) < 0.01 && color.alpha == 1 && chroma(ground) > 0.2;
}

constexpr double textContrast = 4.5;
constexpr double largeTextContrast = 3;

/// For text that is not on a coloured fill.
double minimumContrast(const TextRun& run, const ui::Appearance& appearance) {
  const bool isLarge = run.font.size >= 18 && run.font.weight >= ui::Weight::bold;
  // The accent colour is the user's choice, so full contrast needs Increase Contrast.
  const bool isUsersColor = isAccentColored(run.color, appearance);
  return isLarge || (isUsersColor && !appearance.increaseContrast) ? largeTextContrast
                                                                   : textContrast;
}

/// The minimum width and height of a control, in points.
double minimumSide(const ui::SemanticsNode& control) {
  static const std::vector<std::string> lights{"Close", "Minimise", "关闭", "最小化"};
  // Traffic lights and pop-up buttons are as large as the system's. Other controls have the labels
  // of the lights, too, but are larger.
  constexpr double lightSide = 14;
  constexpr double hoveredLightSide = 1.1 * lightSide;
  constexpr double popUpButtonHeight = 22;
  if (std::ranges::find(lights, control.label) != lights.end() &&
      control.frame.width <= hoveredLightSide + 0.01) {
    return lightSide;
  }
  return control.role == ui::Role::popUpButton ? popUpButtonHeight : 24;
}

/// Whether it is the name of a display or a message of the system. The application's own texts are
/// never truncated.
bool comesFromOutside(const std::string& text) {
  return text.starts_with("Conference Room Television") || text.starts_with("左侧墙面上的会议室") ||
         text.starts_with("The operation couldn’t be completed.");
}

/// Whether `line` is `text` with parts replaced by an ellipsis.
bool isTruncationOf(const std::string& line, const std::string& text) {
  std::size_t from = 0;
  std::size_t start = 0;
  while (start <= line.size()) {
    const std::size_t end = std::min(line.find(ellipsis, start), line.size());
    std::string piece = line.substr(start, end - start);
    piece.erase(piece.find_last_not_of(' ') + 1);
    const std::size_t found = text.find(piece, from);
    if (found == std::string::npos) {
      return false;
    }
    from = found + piece.size();
    start = end + ellipsis.size();
  }
  return true;
}

double sharedHeight(const TextRun& first, const TextRun& second) {
  return std::min(first.frame.bottom(), second.frame.bottom()) -
         std::max(first.frame.y, second.frame.y);
}

/// Whether they are adjacent lines of a paragraph: one below the other, in the same font.
bool areAdjacentLines(const TextRun& first, const TextRun& second) {
  const double distance = std::abs(first.baseline - second.baseline);
  const bool isBelow = first.frame.x < second.frame.right() && second.frame.x < first.frame.right();
  return isBelow && first.font == second.font && first.color == second.color && distance > 0 &&
         distance < 1.6 * first.font.size;
}

class GalleryRulesTest : public desk::MachineFixture,
                         public testing::WithParamInterface<std::string> {
 protected:
  void expectRulesToHold(const Specimen& specimen, Interaction interaction) {
    const ui::ViewHost& host = specimen.host();
    TextCollector collector(resources.shaper, 2);
    host.paint(collector, {0, 0, host.size().width, host.size().height});
    runs_ = collector.runs();
    std::erase_if(runs_, [](const TextRun& run) { return run.visible.isEmpty(); });
    nodes_ = desk::findElements(host.semantics(), [](const ui::SemanticsNode&) { return true; });
    expectTruncatedTextsToHaveATooltip(host);
    expectNothingIsClipped(host);
    expectNoTextsOverlap();
    expectEqualBaselinesInARow();
    expectControlsAreLargeEnough();
    expectTextsAreReadable(specimen, interaction);
    textCount += runs_.size();
  }

  GallerySheet sheet = gallerySheetNamed(GetParam());
  desk::DrawingResources resources;
  std::size_t textCount = 0;

 private:
  void expectTruncatedTextsToHaveATooltip(const ui::ViewHost& host) const {
    for (const TextRun& run : runs_) {
      const bool isSoInSemantics = std::ranges::any_of(nodes_, [&](const ui::SemanticsNode& node) {
        return node.label.find(run.line) != std::string::npos ||
               node.value.find(run.line) != std::string::npos;
      });
      if (run.line.find(ellipsis) == std::string::npos || isSoInSemantics) {
        continue;
      }
      const auto tooltip = host.tooltipAt(run.visible.center());
      EXPECT_TRUE(tooltip && isTruncationOf(run.line, tooltip->text) &&
                  comesFromOutside(tooltip->text) &&
                  tooltip->text.find(ellipsis) == std::string::npos)
          << "\"" << run.line << "\" is truncated, and its tooltip is \""
          << (tooltip ? tooltip->text : "") << "\"";
    }
  }

  /// Whether it is within the height of a horizontal scroll area, visible or not.
  [[nodiscard]] bool canBeScrolledTo(const ui::Rect& frame) const {
    return std::ranges::any_of(nodes_, [&](const ui::SemanticsNode& node) {
      return node.role == ui::Role::scrollArea && node.frame.y <= frame.y &&
             frame.bottom() <= node.frame.bottom();
    });
  }

  void expectNothingIsClipped(const ui::ViewHost& host) const {
    for (const TextRun& run : runs_) {
      EXPECT_TRUE(run.visible == run.frame || canBeScrolledTo(run.frame))
          << "\"" << run.line << "\" is clipped";
    }
    // Hovered and selected controls are slightly larger.
    const ui::Rect bounds =
        ui::Rect{0, 0, host.size().width, host.size().height}.inset(Specimen::margin - 3);
    for (const ui::SemanticsNode& node : nodes_) {
      EXPECT_TRUE(!node.children.empty() || node.label.empty() ||
                  bounds.united(node.frame) == bounds || canBeScrolledTo(node.frame))
          << "\"" << node.label << "\" is outside of its specimen";
    }
  }

  void expectNoTextsOverlap() const {
    for (auto first = runs_.begin(); first != runs_.end(); ++first) {
      for (auto second = first + 1; second != runs_.end(); ++second) {
        EXPECT_TRUE(first->visible.intersection(second->visible).isEmpty())
            << "\"" << first->line << "\" lies on \"" << second->line << "\"";
      }
    }
  }

  [[nodiscard]] bool isSingleLine(const TextRun& run) const {
    return std::ranges::none_of(runs_,
                                [&](const TextRun& other) { return areAdjacentLines(run, other); });
  }

  /// A row consists of texts of one size that share more than half of their height.
  void expectEqualBaselinesInARow() const {
    for (auto first = runs_.begin(); first != runs_.end(); ++first) {
      for (auto second = first + 1; second != runs_.end(); ++second) {
        if (first->font.size != second->font.size ||
            sharedHeight(*first, *second) <= first->frame.height / 2 || !isSingleLine(*first) ||
            !isSingleLine(*second)) {
          continue;
        }
        // Scaled texts, as on a selected card, are not aligned to pixels.
        EXPECT_LT(std::abs(first->baseline - second->baseline),
                  first->scale == 1 && second->scale == 1 ? 0.01 : 1.0)
            << "\"" << first->line << "\" beside \"" << second->line << "\"";
      }
    }
  }

  void expectControlsAreLargeEnough() const {
    for (const ui::SemanticsNode& node : nodes_) {
      if (node.isControl) {
        EXPECT_GE(std::min(node.frame.width, node.frame.height), minimumSide(node) - 0.001)
            << "\"" << node.label << "\"";
      }
    }
  }

  [[nodiscard]] bool isDisabled(const TextRun& run) const {
    return std::ranges::any_of(nodes_, [&](const ui::SemanticsNode& node) {
      return !node.isEnabled && node.frame.contains(run.visible.center());
    });
  }

  void expectTextsAreReadable(const Specimen& specimen, Interaction interaction) {
    const ui::Size size = specimen.size();
    const ui::Appearance& appearance = specimen.host().appearance();
    const desk::SurfacePointer shown = desk::imageSurface(size);
    TextlessCanvas canvas(shown.get(), 1, resources);
    specimen.paint(canvas, {0, 0});
    cairo_surface_flush(shown.get());
    for (const desk::Appearance::Wallpaper wallpaper : wallpapers) {
      const Behind behind{shown.get(), groundOf(size, appearance, wallpaper)};
      for (const TextRun& run : runs_) {
        if (isDisabled(run)) {
          continue;
        }
        const ui::Point middle = run.visible.center();
        const bool isOnAFill = isOnColoredFill(run.color, behind.at(middle));
        // A press is short, and its style makes the fill fainter.
        const double required = !isOnAFill ? minimumContrast(run, appearance)
                                : appearance.increaseContrast && interaction != Interaction::pressed
                                    ? textContrast
                                    : largeTextContrast;
        const double reached =
            isOnAFill ? contrastOnTheDarkestFill(run, behind) : minimumContrastOver(run, behind);
        EXPECT_GE(reached, required)
            << "\"" << run.line << "\" on wallpaper " << static_cast<int>(wallpaper);
      }
    }
  }

  /// The picture without its texts, one pixel per point.
  struct Behind {
    cairo_surface_t* shown;
    cairo_surface_t* ground;

    [[nodiscard]] ui::Rgba at(ui::Point point) const {
      const auto within = [](double place, int size) {
        return std::clamp(static_cast<int>(place), 0, size - 1);
      };
      const int x = within(point.x, cairo_image_surface_get_width(shown));
      const int y = within(point.y, cairo_image_surface_get_height(shown));
      const ui::Rgba above = pixelAt(shown, x, y);
      const ui::Rgba below = pixelAt(ground, x, y);
      const double through = 1 - above.alpha;
      return {above.red + below.red * through, above.green + below.green * through,
              above.blue + below.blue * through, 1};
    }
  };

  static double contrastOn(const TextRun& run, const ui::Rgba& behind) {
    ui::Rgba ink = run.color;
    ink.alpha *= run.opacity;
    return contrast(luminance(over(ink, behind)), luminance(behind));
  }

  static double minimumContrastOver(const TextRun& run, const Behind& behind) {
    double minimum = 21;
    ui::Rgba last{-1, 0, 0, 0};
    for (double y = run.visible.y; y < run.visible.bottom(); ++y) {
      for (double x = run.visible.x; x < run.visible.right(); ++x) {
        const ui::Rgba here = behind.at({x, y});
        if (!(here == last)) {
          minimum = std::min(minimum, contrastOn(run, here));
          last = here;
        }
      }
    }
    return minimum;
  }

  /// Fills may be gradients; the darker end counts.
  [[nodiscard]] double contrastOnTheDarkestFill(const TextRun& run, const Behind& behind) const {
    const ui::Point middle = run.visible.center();
    ui::Rgba darkest = behind.at(middle);
    for (const ui::SemanticsNode& node : nodes_) {
      if (!node.isControl || !node.frame.contains(middle)) {
        continue;
      }
      for (double y = node.frame.y; y < node.frame.bottom(); ++y) {
        const ui::Rgba here = behind.at({middle.x, y});
        if (isOnColoredFill(run.color, here) && luminance(here) < luminance(darkest)) {
          darkest = here;
        }
      }
    }
    return contrastOn(run, darkest);
  }

  /// The background of specimens of this size, cached, because many have the same size.
  cairo_surface_t* groundOf(ui::Size size, const ui::Appearance& appearance,
                            desk::Appearance::Wallpaper wallpaper) {
    desk::SurfacePointer& kept = grounds_[{size.width, size.height, appearance.dark,
                                           appearance.increaseContrast, wallpaper}];
    if (kept == nullptr) {
      kept = desk::imageSurface(size);
      desk::CairoCanvas canvas(kept.get(), 1, resources);
      paintWallpaper(canvas.context(), wallpaper, appearance.dark, size.width, size.height);
      // Larger than the specimen, so that its edges are outside.
      const double inset = isWholeWindow(sheet.background) ? Specimen::margin : -Specimen::margin;
      paintBackground(canvas, sheet.background,
                      ui::Rect{0, 0, size.width, size.height}.inset(inset), appearance, resources);
      cairo_surface_flush(kept.get());
    }
    return kept.get();
  }

  std::vector<TextRun> runs_;
  std::vector<ui::SemanticsNode> nodes_;
  std::map<std::tuple<double, double, bool, bool, desk::Appearance::Wallpaper>,
           desk::SurfacePointer>
      grounds_;
};

TEST_P(GalleryRulesTest, HoldForEveryTextAndControl) {
  for (const auto language : {OrvaneLanguage::english, OrvaneLanguage::chinese}) {
    machine.userDefaults.set(OrvaneLanguage::defaultsKey,
                             std::string(OrvaneLanguage(language).rawValue()));
    for (const GalleryItem& item : sheet.items) {
      // The sheets of the components suffice for the accent colours. A press is short.
      const bool hasAccents =
          !isWholeWindow(sheet.background) && item.interaction != Interaction::pressed;
      const std::size_t accentCount = hasAccents ? accents.size() : 1;
      Specimen specimen(item, language, {}, resources);
      for (std::size_t index = 0; index < 4 * accentCount && !HasFailure(); ++index) {
        const bool isDark = index % 2 == 1;
        const bool increasesContrast = index / 2 % 2 == 1;
        SCOPED_TRACE(item.caption +
                     (language == OrvaneLanguage::english ? ", English" : ", Chinese") +
                     (isDark ? ", dark" : ", light") +
                     (increasesContrast ? ", Increase Contrast, accent " : ", accent ") +
                     std::to_string(index / 4));
        specimen.appear({.dark = isDark,
                         .accent = accents.at(index / 4),
                         .increaseContrast = increasesContrast});
        expectRulesToHold(specimen, item.interaction);
      }
    }
  }
  EXPECT_EQ(textCount > 0, sheet.hasTexts);
}

std::vector<std::string> sheetNames() {
  std::vector<std::string> names;
  for (const GallerySheet& sheet : gallerySheets()) {
    names.push_back(sheet.name);
  }
  return names;
}

std::string testName(const testing::TestParamInfo<std::string>& info) {
  std::string name = info.param;
  std::ranges::replace(name, '-', '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(Sheets, GalleryRulesTest, testing::ValuesIn(sheetNames()), testName);

}  // namespace
}  // namespace orvane::showroom
