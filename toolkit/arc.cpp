#include "toolkit/arc.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace toolkit {
namespace {

// The clockwise tangent at the touch point.
Point Tangent(const CircleShape& circle) {
  return {circle.towardCentre.y, -circle.towardCentre.x};
}

}  // namespace

VisibleArc ArcInDisc(const CircleShape& circle, Point middle, double reach) {
  constexpr VisibleArc kNothing{1.0, 0.0};
  const double r = circle.radius;
  const double mx = middle.x - circle.touch.x;
  const double my = middle.y - circle.touch.y;
  const Point t = Tangent(circle);
  const double along = mx * t.x + my * t.y;
  const double inward = mx * circle.towardCentre.x + my * circle.towardCentre.y;
  const double d = std::hypot(along, r - inward);
  if (d + r <= reach) return {-std::numbers::pi, std::numbers::pi};
  const double gap = (along * along + inward * inward - 2.0 * r * inward) / (d + r);
  if (!(std::abs(gap) <= reach)) return kNothing;
  // Two factors, each of moderate size: d*r itself may exceed the largest double.
  const double sine = std::sqrt((reach - gap) / d) * std::sqrt((reach + gap) / r) / 2.0;
  const double half = 2.0 * std::asin(std::min(sine, 1.0));
  const double toward = std::atan2(along, r - inward);
  return {toward - half, toward + half};
}

Point PointOfArc(const CircleShape& circle, double angle) {
  const Point t = Tangent(circle);
  // Both parts from the half angle, whose sine and cosine the compiler takes in one call.
  const double s = std::sin(angle / 2.0);
  const double c = std::cos(angle / 2.0);
  const double along = circle.radius * (2.0 * s * c);
  const double height = circle.radius * (2.0 * s * s);
  return {circle.touch.x + along * t.x + height * circle.towardCentre.x,
          circle.touch.y + along * t.y + height * circle.towardCentre.y};
}

}  // namespace toolkit
