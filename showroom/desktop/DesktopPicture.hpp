// Pictures of the desktop, and of one window or menu on it.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "desk/application/ApplicationHost.hpp"
#include "desk/canvas/CairoPointers.hpp"
#include "desk/machine/Machine.hpp"
#include "showroom/desktop/DesktopLayout.hpp"
#include "showroom/desktop/DesktopPainter.hpp"
#include "showroom/desktop/DesktopScene.hpp"

namespace orvane::showroom {

/// The whole desktop at `scale` pixels per point; null if the picture would be empty or have more
/// than 16384 pixels to a side.
desk::SurfacePointer renderDesktop(DesktopPainter& painter, const DesktopScene& scene,
                                   DesktopStyle style, double scale);

/// Writes a PNG file of the screens in the `exact` style at `scale` pixels per point, or of one
/// `surface`: a window or the open menu, with the wallpaper behind it but without other windows.
/// Returns the problem; none if the file was written. Equal states of the machine give equal bytes.
std::optional<std::string> writePicture(const desk::Machine& machine,
                                        const desk::ApplicationHost& application,
                                        const std::filesystem::path& file, double scale,
                                        const std::optional<std::string>& surface = {});

}  // namespace orvane::showroom
