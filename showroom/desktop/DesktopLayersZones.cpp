// Zones are translucent.
#include <algorithm>
#include <cmath>
#include <numbers>

#include "showroom/desktop/DesktopLayers.hpp"
#include "showroom/desktop/Rects.hpp"

namespace orvane::showroom {

namespace {

constexpr ui::Rgba zoneRed{1, 0.23, 0.19, 1};

void setRed(cairo_t* context, double alpha) {
  cairo_set_source_rgba(context, zoneRed.red, zoneRed.green, zoneRed.blue, alpha);
}

/// An arrow from the middle of the zone in the direction of the nudge, 1.5 times as long.
void addNudgeArrow(cairo_t* context, ui::Point from, const CGVector& nudge) {
  const double length = std::hypot(nudge.dx, nudge.dy);
  if (length <= 0) {
    return;
  }
  const ui::Point along{nudge.dx / length, nudge.dy / length};
  const ui::Point across{-along.y, along.x};
  const ui::Point tip{from.x + nudge.dx * 1.5, from.y + nudge.dy * 1.5};
  constexpr double head = 5;
  cairo_move_to(context, from.x, from.y);
  cairo_line_to(context, tip.x, tip.y);
  for (const double side : {-1.0, 1.0}) {
    cairo_move_to(context, tip.x, tip.y);
    cairo_line_to(context, tip.x - (along.x - side * across.x) * head,
                  tip.y - (along.y - side * across.y) * head);
  }
}

void paintZone(cairo_t* context, const TriggerZone& zone) {
  const ui::Rect rect = rectOf(zone.rect);
  setRed(context, 0.44);
  cairo_rectangle(context, rect.x, rect.y, rect.width, rect.height);
  cairo_fill(context);
  setRed(context, 0.85);
  cairo_set_line_width(context, 1);
  cairo_rectangle(context, rect.x + 0.5, rect.y + 0.5, rect.width - 1, rect.height - 1);
  cairo_stroke(context);

  constexpr double arrowDistance = 110;
  const bool isLevel = rect.width >= rect.height;
  const double length = isLevel ? rect.width : rect.height;
  const int arrows = std::max(1, static_cast<int>(length / arrowDistance));
  cairo_set_line_width(context, 2);
  cairo_set_line_cap(context, CAIRO_LINE_CAP_ROUND);
  cairo_set_line_join(context, CAIRO_LINE_JOIN_ROUND);
  for (int arrow = 0; arrow < arrows; ++arrow) {
    const double place = length * (arrow + 0.5) / arrows;
    const ui::Point from = isLevel ? ui::Point{rect.x + place, rect.center().y}
                                   : ui::Point{rect.center().x, rect.y + place};
    addNudgeArrow(context, from, zone.nudgeVector);
  }
  cairo_stroke(context);
}

/// A circle around the intended location, and a line to the actual one.
void paintMovedBack(cairo_t* context, const MovedBack& movedBack) {
  const double strength = std::clamp(movedBack.strength, 0.0, 1.0);
  constexpr double fullTurn = 2 * std::numbers::pi;
  constexpr double radius = 20;
  constexpr double growth = 22;
  const double grown = radius + (1 - strength) * growth;
  cairo_set_source_rgba(context, 1, 1, 1, 0.28 * strength);
  cairo_arc(context, movedBack.from.x, movedBack.from.y, grown + 9, 0, fullTurn);
  cairo_fill(context);
  setRed(context, 0.95 * strength);
  cairo_set_line_width(context, 3);
  cairo_arc(context, movedBack.from.x, movedBack.from.y, grown, 0, fullTurn);
  cairo_stroke(context);
  setRed(context, 0.5 * strength);
  cairo_set_line_width(context, 1.5);
  cairo_arc(context, movedBack.from.x, movedBack.from.y, grown + 9, 0, fullTurn);
  cairo_stroke(context);
  setRed(context, 0.95 * strength);
  cairo_set_line_width(context, 2);
  cairo_move_to(context, movedBack.from.x, movedBack.from.y);
  cairo_line_to(context, movedBack.to.x, movedBack.to.y);
  cairo_stroke(context);
  cairo_arc(context, movedBack.from.x, movedBack.from.y, 3, 0, fullTurn);
  cairo_fill(context);
}

}  // namespace

void paintZoneLayer(const DesktopScene& scene, const DisplayCanvas& display) {
  cairo_t* const context = display.canvas.context();
  if (scene.showsZones) {
    for (const TriggerZone& zone : scene.zones) {
      if (rectOf(zone.rect).intersects(display.frame)) {
        paintZone(context, zone);
      }
    }
  }
  if (scene.movedBack && scene.movedBack->strength > 0) {
    paintMovedBack(context, *scene.movedBack);
  }
}

}  // namespace orvane::showroom
