// Paints on temporary surfaces and composes them according to the graphics state. Without ARC.
#include "tests/gnustep/shim/Painting.hpp"

#include <algorithm>
#include <cmath>

namespace orvane::gnustep {
namespace {

/// Box blur over `2 * radius + 1` values of one channel, along a row or a column.
void blurLine(unsigned char* first, int count, int step, int radius) {
  std::vector<int> line(static_cast<std::size_t>(count));
  for (int index = 0; index < count; ++index) {
    line[static_cast<std::size_t>(index)] = first[index * step];
  }
  const auto at = [&](int index) {
    return index >= 0 && index < count ? line[static_cast<std::size_t>(index)] : 0;
  };
  int sum = 0;
  for (int index = -radius; index <= radius; ++index) {
    sum += at(index);
  }
  for (int index = 0; index < count; ++index) {
    first[index * step] = static_cast<unsigned char>(sum / (2 * radius + 1));
    sum += at(index + radius + 1) - at(index - radius);
  }
}

/// Three box blurs approximate a Gaussian.
void blurAlpha(cairo_surface_t* surface, double deviation) {
  const int radius =
      static_cast<int>(std::lround((std::sqrt(4 * deviation * deviation + 1) - 1) / 2));
  if (radius == 0) {
    return;
  }
  cairo_surface_flush(surface);
  const int width = cairo_image_surface_get_width(surface);
  const int height = cairo_image_surface_get_height(surface);
  const int stride = cairo_image_surface_get_stride(surface);
  unsigned char* const alpha = cairo_image_surface_get_data(surface) + 3;
  for (int time = 0; time < 3; ++time) {
    for (int row = 0; row < height; ++row) {
      blurLine(alpha + row * stride, width, 4, radius);
    }
    for (int column = 0; column < width; ++column) {
      blurLine(alpha + 4 * column, height, stride, radius);
    }
  }
  cairo_surface_mark_dirty(surface);
}

/// Draws on `surface` with the given path and matrix.
void drawOn(cairo_surface_t* surface, const cairo_path_t* path, const cairo_matrix_t& matrix,
            const std::function<void(cairo_t*)>& draw) {
  cairo_t* const cairo = cairo_create(surface);
  cairo_append_path(cairo, path);
  cairo_set_matrix(cairo, &matrix);
  draw(cairo);
  cairo_destroy(cairo);
}

}  // namespace

cairo_surface_t* surfaceLike(const OrvaneShimContext* context) {
  cairo_surface_t* const surface =
      cairo_image_surface_create(CAIRO_FORMAT_ARGB32, context->_width, context->_height);
  cairo_surface_set_device_offset(surface, context->_offsetX, context->_offsetY);
  return surface;
}

void paint(OrvaneShimContext* context, const std::function<void(cairo_t*)>& draw) {
  cairo_t* const cairo = context->_cairo;
  const DrawingState& state = context->_states.back();
  if (!state.shadow && state.alpha >= 1 && state.blendMode == kCGBlendModeNormal) {
    cairo_save(cairo);
    draw(cairo);
    cairo_restore(cairo);
    return;
  }
  cairo_matrix_t matrix;
  cairo_get_matrix(cairo, &matrix);
  cairo_save(cairo);
  cairo_identity_matrix(cairo);
  cairo_path_t* const path = cairo_copy_path(cairo);
  cairo_surface_t* const picture = surfaceLike(context);
  drawOn(picture, path, matrix, draw);
  if (state.shadow) {
    // Drawn again at the shadow's offset: the shape itself may lie outside of the picture.
    const auto& [offset, blur, color] = *state.shadow;
    cairo_surface_t* const shadow = surfaceLike(context);
    cairo_surface_set_device_offset(shadow, context->_offsetX + offset.width * context->_base.xx,
                                    context->_offsetY + offset.height * context->_base.yy);
    drawOn(shadow, path, matrix, draw);
    cairo_surface_set_device_offset(shadow, context->_offsetX, context->_offsetY);
    // The blur radius is twice the standard deviation.
    blurAlpha(shadow, blur * std::abs(context->_base.xx) / 2);
    cairo_set_source_rgba(cairo, color.red, color.green, color.blue, color.alpha * state.alpha);
    cairo_mask_surface(cairo, shadow, 0, 0);
    cairo_surface_destroy(shadow);
  }
  if (state.blendMode == kCGBlendModeSourceIn) {
    // Affects only the pixels inside the path.
    cairo_new_path(cairo);
    cairo_append_path(cairo, path);
    cairo_clip(cairo);
    cairo_set_operator(cairo, CAIRO_OPERATOR_IN);
  }
  cairo_set_source_surface(cairo, picture, 0, 0);
  cairo_paint_with_alpha(cairo, state.alpha);
  cairo_restore(cairo);
  cairo_path_destroy(path);
  cairo_surface_destroy(picture);
}

}  // namespace orvane::gnustep
