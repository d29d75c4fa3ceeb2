#include "toolkit/clip.h"

#include <cmath>

namespace toolkit {
namespace {

using Axis = double Point::*;

// Half of the difference of two coordinates, which the difference itself might exceed.
double HalfSpan(double from, double to) {
  return 0.5 * to - 0.5 * from;
}

// Keeps what lies on one side of a line across `axis`: `side` 1 below the limit, -1 above it. False
// when nothing is left. The end that is cut off comes to lie exactly on the limit; its other
// coordinate is counted from the end nearer to the limit, whose digits it needs.
bool Keep(Segment& segment, Axis axis, Axis across, double limit, double side) {
  const double from = side * HalfSpan(limit, segment.from.*axis);
  const double to = side * HalfSpan(limit, segment.to.*axis);
  if (from > 0.0 && to > 0.0) return false;
  if (from <= 0.0 && to <= 0.0) return true;
  const bool fromIsNearer = std::abs(from) < std::abs(to);
  const Point near = fromIsNearer ? segment.from : segment.to;
  const Point far = fromIsNearer ? segment.to : segment.from;
  const double share = HalfSpan(near.*axis, limit) / HalfSpan(near.*axis, far.*axis);
  Point& cut = from > 0.0 ? segment.from : segment.to;
  cut.*across = near.*across + 2.0 * (share * HalfSpan(near.*across, far.*across));
  cut.*axis = limit;
  return true;
}

}  // namespace

std::optional<Segment> Clip(const Segment& segment, const Box& box) {
  Segment kept = segment;
  const bool left = Keep(kept, &Point::x, &Point::y, box.right, 1.0) &&
                    Keep(kept, &Point::x, &Point::y, box.left, -1.0) &&
                    Keep(kept, &Point::y, &Point::x, box.bottom, 1.0) &&
                    Keep(kept, &Point::y, &Point::x, box.top, -1.0);
  if (!left) return std::nullopt;
  return kept;
}

}  // namespace toolkit
