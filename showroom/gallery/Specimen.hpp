// Specimen hosts one component of the gallery and brings it into its state by the same events as in
// a window.
#pragma once

#include <memory>

#include "Orvane/ui/host/ViewHost.hpp"
#include "desk/canvas/CairoCanvas.hpp"
#include "showroom/gallery/GallerySheet.hpp"

namespace orvane::showroom {

class Specimen {
 public:
  /// The margin for shadows and focus rings, in points.
  static constexpr double margin = 14;

  /// The resources must outlive the specimen. Texts that follow the stored setting have
  /// the language that is stored on the current machine. A whole panel's model lives on that
  /// machine as long as the specimen.
  Specimen(const GalleryItem& item, OrvaneLanguage language, const ui::Appearance& appearance,
           desk::DrawingResources& resources);

  /// Changes the appearance and ends the animations.
  void appear(const ui::Appearance& appearance);

  /// In points, including the margin.
  [[nodiscard]] ui::Size size() const { return host_->size(); }
  [[nodiscard]] const ui::ViewHost& host() const { return *host_; }

  /// Paints it with its top left corner at `corner`.
  void paint(desk::CairoCanvas& canvas, ui::Point corner) const;

 private:
  void use(Interaction interaction);
  void settle();

  std::unique_ptr<ui::ViewHost> host_;
};

}  // namespace orvane::showroom
