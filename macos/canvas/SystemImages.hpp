// The system's symbols and the bundle's images, by name.
#pragma once

#include <string>

#import <AppKit/AppKit.h>

#include "Orvane/ui/draw/ImageSource.hpp"

namespace orvane::appkit {

/// A monochrome symbol in the font's size and weight, drawn in black; nil when the system has no
/// symbol of that name.
[[nodiscard]] NSImage* _Nullable symbolImage(const std::string& name, const ui::Font& font);

/// An image from the bundle's resources; nil when there is none of that name.
[[nodiscard]] NSImage* _Nullable resourceImage(const std::string& name);

/// The sizes of both kinds of images, for layout.
[[nodiscard]] ui::ImageSource systemImageSource();

}  // namespace orvane::appkit
