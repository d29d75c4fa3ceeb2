#pragma once

#include "toolkit/canvas.h"

namespace toolkit {

// The arc of a circle that passes near a canvas, as an interval of the angle at its centre, counted
// from the touch point toward the clockwise tangent (the unit vector to the centre turned by a
// quarter).
struct VisibleArc {
  double begin, end;  // radians; empty when end < begin
};

// The part of the circle inside the disc of radius `reach` around `middle` (all in pixels): one
// arc, or the whole circle, or nothing. Any finite circle with radius >= 0.
//
// With d the distance of the centre from `middle`, the half-angle g of the arc follows from
// reach^2 = (d - r)^2 + 4*d*r*sin^2(g/2), and d - r = (|m|^2 - 2*r*m_n) / (d + r), where m leads
// from the touch point to `middle` and m_n is its part toward the centre: no difference of two huge
// numbers, so the arc stays right when r is 10^17.
VisibleArc ArcInDisc(const CircleShape& circle, Point middle, double reach);

// The point of the circle at this angle. Its height over the tangent is 2*r*sin^2(angle/2), which
// keeps the digits that r - r*cos(angle) would lose.
Point PointOfArc(const CircleShape& circle, double angle);

}  // namespace toolkit
