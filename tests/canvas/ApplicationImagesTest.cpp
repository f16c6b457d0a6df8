// The application's images: each has the right sizes, equals its drawing, and can be painted at any
// size.
#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <librsvg/rsvg.h>

#include "desk/canvas/Artwork.hpp"
#include "desk/canvas/ImageLibrary.hpp"
#include "desk/canvas/ImageSurface.hpp"
#include "desk/canvas/PngFile.hpp"
#include "tests/canvas/PixelFixture.hpp"
#include "tests/support/BytesOf.hpp"
#include "tests/support/KeptPicture.hpp"

namespace orvane::desk {
namespace {

namespace fs = std::filesystem;

const fs::path resources = fs::path(ORVANE_SOURCE_FOLDER) / "Orvane/resources";

struct PixelSize {
  int width = 0;
  int height = 0;

  friend bool operator==(const PixelSize&, const PixelSize&) = default;
};

PixelSize sizeOf(cairo_surface_t* surface) {
  return {cairo_image_surface_get_width(surface), cairo_image_surface_get_height(surface)};
}

SurfacePointer drawn(const fs::path& drawing, PixelSize size) {
  const ObjectPointer<RsvgHandle> handle(rsvg_handle_new_from_file(drawing.c_str(), nullptr));
  SurfacePointer surface = imageSurface(size.width, size.height);
  if (handle) {
    const ContextPointer context(cairo_create(surface.get()));
    const RsvgRectangle viewport{0, 0, 1.0 * size.width, 1.0 * size.height};
    rsvg_handle_render_document(handle.get(), context.get(), &viewport, nullptr);
  }
  return surface;
}

/// Other versions of librsvg may round differently.
constexpr int tolerance = 6;

void expectDrawn(cairo_surface_t* picture, const std::string& drawing, PixelSize size) {
  ASSERT_NE(picture, nullptr) << drawing;
  EXPECT_EQ(sizeOf(picture), size) << drawing << " of " << size.width;
  EXPECT_EQ(
      pictureDifference(picture, drawn(resources / (drawing + ".svg"), size).get(), tolerance),
      std::nullopt)
      << drawing << " of " << size.width
      << " pixels differs from its drawing; run tools/render-artwork";
}

std::string drawingOfIcon(int pixels) {
  return pixels <= 32 ? "AppIcon-small" : "AppIcon";
}

TEST(ApplicationImagesTest, EachImageHasItsSizeInPoints) {
  const ImageLibrary library;
  const std::map<std::string, ui::Size> sizes{{"AppIcon", {128, 128}},
                                              {"DisplayLaptop", {122, 70}},
                                              {"DisplayLaptop-dark", {122, 70}},
                                              {"DisplayMonitor", {122, 70}},
                                              {"DisplayMonitor-dark", {122, 70}}};
  EXPECT_EQ(imageArtworks().size(), sizes.size());
  for (const auto& [name, size] : sizes) {
    EXPECT_EQ(library.size(name), size) << name;
  }
}

TEST(ApplicationImagesTest, RenderedFilesAreWhatTheirDrawingsShowAtBothScales) {
  for (const Artwork& artwork : imageArtworks()) {
    const std::string name(artwork.name);
    const PixelSize once = name == "AppIcon" ? PixelSize{128, 128} : PixelSize{122, 70};
    const SurfacePointer single = readPng(resources / "rendered" / (name + ".png"));
    expectDrawn(single.get(), name, once);
    expectDrawn(decodePng(artwork.bytes).get(), name, {2 * once.width, 2 * once.height});
  }
}

TEST(ApplicationImagesTest, TheIconFileHasEverySizeOfAMac) {
  const std::string file = bytesOf(resources / "rendered" / "AppIcon.icns");
  const auto number = [&](std::size_t at) {
    std::uint32_t value = 0;
    for (std::size_t index = 0; index < 4; ++index) {
      value = value << 8U | static_cast<unsigned char>(file.at(at + index));
    }
    return value;
  };
  ASSERT_EQ(file.substr(0, 4), "icns");
  ASSERT_EQ(number(4), file.size());
  std::map<std::string, int> found;
  for (std::size_t at = 8; at < file.size(); at += number(at + 4)) {
    const std::string kind = file.substr(at, 4);
    const std::string png = file.substr(at + 8, number(at + 4) - 8);
    const SurfacePointer picture = decodePng(png);
    ASSERT_TRUE(picture) << kind;
    const int pixels = sizeOf(picture.get()).width;
    found[kind] = pixels;
    expectDrawn(picture.get(), drawingOfIcon(pixels), {pixels, pixels});
  }
  // The image types of the format: 16 to 512 points, with one and two pixels per point.
  EXPECT_EQ(found, (std::map<std::string, int>{{"icp4", 16},
                                               {"icp5", 32},
                                               {"ic07", 128},
                                               {"ic08", 256},
                                               {"ic09", 512},
                                               {"ic11", 32},
                                               {"ic12", 64},
                                               {"ic13", 256},
                                               {"ic14", 512},
                                               {"ic10", 1024}}));
}

class ImageLibraryTest : public PixelFixture {
 protected:
  static SurfacePointer icon() {
    for (const Artwork& artwork : imageArtworks()) {
      if (artwork.name == "AppIcon") {
        return decodePng(artwork.bytes);
      }
    }
    return nullptr;
  }
};

TEST_F(ImageLibraryTest, AtTwoPixelsToThePointAnImageIsShownPixelByPixel) {
  begin(128, 128, 2).image("AppIcon", {0, 0, 128, 128});
  EXPECT_EQ(contentOf(surface.get()), contentOf(icon().get()));
}

TEST_F(ImageLibraryTest, AnImageIsStretchedToItsRectangle) {
  begin(60, 60).image("AppIcon", {10, 20, 40, 20});
  EXPECT_EQ(at(9, 30), nothing);
  EXPECT_EQ(at(30, 19), nothing);
  EXPECT_EQ(at(30, 41), nothing);
  EXPECT_GT(at(30, 30).alpha, 250);
  EXPECT_GT(at(16, 30).alpha, 250);
  begin(60, 60).image("AppIcon", {10, 20, 40, 0});
  EXPECT_EQ(ink(), 0);
}

TEST_F(ImageLibraryTest, AStrongReductionKeepsTheMeanOfThePixels) {
  const SurfacePointer whole = icon();
  constexpr int side = 256;
  constexpr double count = side * side;
  Pixel sum;
  for (int y = 0; y < side; ++y) {
    for (int x = 0; x < side; ++x) {
      const Pixel pixel = pixelAt(whole.get(), x, y);
      sum.red += pixel.red;
      sum.alpha += pixel.alpha;
    }
  }
  begin(1, 1).image("AppIcon", {0, 0, 1, 1});
  EXPECT_NEAR(at(0, 0).red, sum.red / count, 4);
  EXPECT_NEAR(at(0, 0).alpha, sum.alpha / count, 4);
}

TEST_F(ImageLibraryTest, ARemovedImageIsNotShown) {
  resources.images.remove("AppIcon");
  EXPECT_FALSE(resources.images.size("AppIcon"));
  begin(4, 4).image("AppIcon", {0, 0, 4, 4});
  EXPECT_EQ(ink(), 0);
}

}  // namespace
}  // namespace orvane::desk
