// Replaces GNUstep's header of this name: the shim implements the application's own declarations of
// points, sizes and rectangles.
#pragma once

#include <cfloat>

#include "Orvane/platform/Quartz.hpp"

#define CF_DEFINES_CG_TYPES
#define CGFLOAT_DEFINED 1
#define CGFLOAT_IS_DOUBLE 1
#define CGFLOAT_MIN DBL_MIN
#define CGFLOAT_MAX DBL_MAX
#define CGVECTOR_DEFINED 1

enum { CGRectMinXEdge, CGRectMinYEdge, CGRectMaxXEdge, CGRectMaxYEdge };

struct CGAffineTransform {
  CGFloat a;
  CGFloat b;
  CGFloat c;
  CGFloat d;
  CGFloat tx;
  CGFloat ty;
};
