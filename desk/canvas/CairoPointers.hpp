// Owning pointers for the C objects of cairo, pango and librsvg.
#pragma once

#include <memory>

#include <cairo.h>

// Forward declarations, because the libraries' headers are large.
using PangoContext = struct _PangoContext;
using PangoFontMap = struct _PangoFontMap;
using PangoLayout = struct _PangoLayout;
using RsvgHandle = struct _RsvgHandle;
// NOLINTNEXTLINE(readability-identifier-naming): GLib's own name
extern "C" void g_object_unref(void* object);

namespace orvane::desk {

/// Destroys an object with a function of its library.
template <auto destroy>
struct Release {
  template <typename Object>
  void operator()(Object* object) const {
    destroy(object);
  }
};

using SurfacePointer = std::unique_ptr<cairo_surface_t, Release<cairo_surface_destroy>>;
using ContextPointer = std::unique_ptr<cairo_t, Release<cairo_destroy>>;
using PatternPointer = std::unique_ptr<cairo_pattern_t, Release<cairo_pattern_destroy>>;
using FontOptionsPointer =
    std::unique_ptr<cairo_font_options_t, Release<cairo_font_options_destroy>>;

/// Owns one reference to a GObject of type `Object`.
template <typename Object>
using ObjectPointer = std::unique_ptr<Object, Release<g_object_unref>>;

}  // namespace orvane::desk
