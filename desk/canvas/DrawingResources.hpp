// The resources that all canvases of a desk share: images, symbols, the text shaper, cached masks.
#pragma once

#include <set>
#include <string>
#include <utility>

#include "Orvane/ui/host/ViewHost.hpp"
#include "desk/canvas/ImageLibrary.hpp"
#include "desk/canvas/Mask.hpp"
#include "desk/canvas/SymbolLibrary.hpp"
#include "desk/canvas/TextShaper.hpp"

namespace orvane::desk {

struct DrawingResources {
  ImageLibrary images;
  SymbolLibrary symbols;
  TextShaper shaper;
  Cache<Mask> masks{std::size_t{48} << 20U};
  /// The coverage of shapes. A panel's largest take a few megabytes each.
  Cache<SurfacePointer> shapes{std::size_t{64} << 20U};
  /// The unknown images and symbols that were drawn; tests expect none.
  std::set<std::string> missingNames;

  /// What a host of views needs. It refers to this object, which must outlive it.
  ui::HostPlatform hostPlatform(ui::HostServices services = {}) {
    return {.text = &shaper,
            .images = {[this](const std::string& name) { return images.size(name); },
                       [this](const std::string& name, const ui::Font& font) {
                         return symbols.size(name, font);
                       }},
            .services = std::move(services)};
  }
};

}  // namespace orvane::desk
