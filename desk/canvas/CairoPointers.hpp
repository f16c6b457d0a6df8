// Owning pointers for the C objects of cairo, pango and librsvg.
#pragma once

#include <memory>

#include <cairo.h>

// Forward declarations, because the libraries' headers are large.
using PangoContext = struct _PangoContext;
using PangoFontMap = struct _PangoFontMap;
using PangoLayout = struct _PangoLayout;
using RsvgHandle = struct _RsvgHandle;

namespace orvane::desk {

struct CairoRelease {
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
  void operator()(cairo_t* context) const { cairo_destroy(context); }
  void operator()(cairo_pattern_t* pattern) const { cairo_pattern_destroy(pattern); }
  void operator()(cairo_font_options_t* options) const { cairo_font_options_destroy(options); }
};

struct ObjectRelease {
  void operator()(void* object) const;
};

using SurfacePointer = std::unique_ptr<cairo_surface_t, CairoRelease>;
using ContextPointer = std::unique_ptr<cairo_t, CairoRelease>;
using PatternPointer = std::unique_ptr<cairo_pattern_t, CairoRelease>;
using FontOptionsPointer = std::unique_ptr<cairo_font_options_t, CairoRelease>;

/// Owns one reference to a GObject of type `Object`.
template <typename Object>
using ObjectPointer = std::unique_ptr<Object, ObjectRelease>;

}  // namespace orvane::desk
