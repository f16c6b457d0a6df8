// The application's icon, which the user can drag into the system's list of applications.
#include "Orvane/permission/OrvaneDraggableAppIconView.hpp"

#include <optional>
#include <string>

#include "Orvane/platform/appkit/Bundle.hpp"
#include "Orvane/ui/views/Image.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"

namespace orvane {

using namespace ui;

View OrvaneDraggableAppIconView::body(const Environment& environment) const {
  // Without an image there is nothing to drag.
  const bool hasImage = environment.hasImage("AppIcon");
  // The clear rectangle takes presses beside the image, so that dragging never moves the window.
  return ZStack({Rectangle().fill(Color::clear()), Image("AppIcon").resizable()})
      .dragSource([hasImage]() -> std::optional<DragRequest> {
        const std::optional<std::string> bundle = appkit::Bundle::url();
        if (!hasImage || !bundle) {
          return std::nullopt;
        }
        return DragRequest{.fileUrl = *bundle, .imageName = "AppIcon"};
      })
      .accessibilityLabel("Orvane")
      .accessibilityRole(Role::image);
}

}  // namespace orvane
