#include "sketch/draw_vector.h"

#include <cmath>
#include <cstdint>
#include <numbers>

namespace sketch {
namespace {

using toolkit::Point;

// The principal direction of the shaft, between -pi/2 and pi/2.
double DirectionAngle(double dx, double dy) {
  constexpr double kUpward = std::numbers::pi / 2.0;
  if (dx != 0.0) return std::atan(dy / dx);
  if (dy > 0.0) return kUpward;
  if (dy < 0.0) return -kUpward;
  return 0.0;
}

}  // namespace

double PointDistance(double xa, double ya, double xb, double yb) {
  return std::sqrt((xa - xb) * (xa - xb) + (ya - yb) * (ya - yb));
}

void DrawVector(double x0, double y0, double vx, double vy, Sketch& surface, int red, int green,
                int blue) {
  const double width = surface.ScaleWidth();
  const double height = surface.ScaleHeight();
  const double barb = std::sqrt(width * width + height * height) / 75.0;
  const Point tip{x0 + vx, y0 + vy};
  const double t = DirectionAngle(tip.x - x0, tip.y - y0);
  const auto fromTip = [&](double angle, double length) {
    return Point{tip.x + length * std::cos(angle), tip.y + length * std::sin(angle)};
  };
  const double a1 = t + std::numbers::pi / 6.0;
  const double a2 = t - std::numbers::pi / 6.0;

  // The angle t knows no forward and backward: on which side the barbs lie is seen from where the
  // tip has come to stand. A vx too small to move it counts as none, for the barbs as for the
  // angle.
  const bool forward = !(tip.x - x0 < 0.0);
  Point b1 = forward ? fromTip(a1, -barb) : fromTip(a2, barb);
  Point b2 = forward ? fromTip(a2, -barb) : fromTip(a1, barb);
  const double length = PointDistance(tip.x, tip.y, x0, y0);
  // A barb that would end behind the start of a short arrow is turned round, ahead of the tip.
  if (PointDistance(b1.x, b1.y, x0, y0) > length) b1 = fromTip(a1, forward ? barb : -barb);
  if (PointDistance(b2.x, b2.y, x0, y0) > length) b2 = fromTip(a2, forward ? barb : -barb);

  if (0.01 * barb > length) return;
  if ((tip.x - x0) * (tip.x - b1.x) + (tip.y - y0) * (tip.y - b1.y) < 0.0) return;
  const Colour colour{static_cast<std::uint8_t>(red), static_cast<std::uint8_t>(green),
                      static_cast<std::uint8_t>(blue)};
  surface.Line(x0, y0, tip.x, tip.y, colour);
  surface.Line(tip.x, tip.y, b1.x, b1.y, colour);
  surface.Line(tip.x, tip.y, b2.x, b2.y, colour);
}

}  // namespace sketch
