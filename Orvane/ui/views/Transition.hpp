// How a view appears and disappears: its effect while it is absent.
#pragma once

namespace orvane::ui {

struct Transition {
  /// The absent view's opacity, its scale about its centre, and how far it has moved towards the
  /// trailing edge, as a fraction of its width.
  double absentOpacity = 1;
  double absentScale = 1;
  double absentOffset = 0;
  /// The opacity begins to change after this fraction of the transition, less than 1.
  double opacityDelay = 0;

  static Transition opacity() { return {.absentOpacity = 0}; }
  /// For views that replace each other in one place: the old one fades out in the first half, the
  /// new one fades in in the second half, and the two are never visible at once. With more than two
  /// views this holds if each change begins after the previous one has ended.
  static Transition fadeThrough() { return {.absentOpacity = 0, .opacityDelay = 0.5}; }
};

}  // namespace orvane::ui
