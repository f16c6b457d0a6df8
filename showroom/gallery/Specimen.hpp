// Specimen is one component of the gallery, alive in a view host of its own and brought into a
// state by the same events that would bring it there in a window.
#pragma once

#include <memory>

#include "Orvane/ui/host/ViewHost.hpp"
#include "desk/canvas/CairoCanvas.hpp"
#include "showroom/gallery/GallerySheet.hpp"

namespace orvane::showroom {

class Specimen {
 public:
  /// Around the component, for shadows and focus rings, in points.
  static constexpr double margin = 14;

  /// Measurer and resources have to outlive the specimen. Texts that follow the stored setting come
  /// in the language that is stored on the current machine. A whole panel's model lives on that
  /// machine as long as the specimen.
  Specimen(const GalleryItem& item, OrvaneLanguage language, const ui::Appearance& appearance,
           ui::TextMeasurer& text, desk::DrawingResources& resources);

  /// Goes over to another appearance, and arrives there.
  void appear(const ui::Appearance& appearance);

  /// In points, with the margin on all sides.
  [[nodiscard]] ui::Size size() const { return host_->size(); }
  [[nodiscard]] const ui::ViewHost& host() const { return *host_; }

  /// Paints it with its top left there, in the canvas' coordinates.
  void paint(desk::CairoCanvas& canvas, ui::Point corner) const;

 private:
  void use(Hand hand);
  void letTimePass();

  std::unique_ptr<ui::ViewHost> host_;
};

}  // namespace orvane::showroom
