#include "toolkit/clip.h"

#include <algorithm>

namespace toolkit {
namespace {

constexpr double kScale = 0.25;

// The parameters 0 to 1 along the segment that are still inside.
struct Span {
  double enter = 0.0;
  double leave = 1.0;

  // Keeps the side where the coordinate, running from `from` to `to`, does not exceed the limit;
  // false when nothing is left.
  bool Keep(double from, double to, double limit) {
    const double roomBefore = limit - from;
    const double roomAfter = limit - to;
    if (roomBefore < 0.0 && roomAfter < 0.0) return false;
    const double crossing = roomBefore / (roomBefore - roomAfter);
    if (roomBefore < 0.0) enter = std::max(enter, crossing);
    if (roomAfter < 0.0) leave = std::min(leave, crossing);
    return enter <= leave;
  }
};

}  // namespace

std::optional<Segment> Clip(const Segment& segment, const Box& box) {
  const Point a{kScale * segment.from.x, kScale * segment.from.y};
  const Point b{kScale * segment.to.x, kScale * segment.to.y};
  Span span;
  if (!span.Keep(a.x, b.x, kScale * box.right) || !span.Keep(-a.x, -b.x, -kScale * box.left) ||
      !span.Keep(a.y, b.y, kScale * box.bottom) || !span.Keep(-a.y, -b.y, -kScale * box.top)) {
    return std::nullopt;
  }
  // Interpolated from both ends, so that the nearer one decides the digits; held to the box,
  // because an end far away leaves none below its own last one.
  const auto at = [&](double t) {
    const double x = ((1.0 - t) * a.x + t * b.x) / kScale;
    const double y = ((1.0 - t) * a.y + t * b.y) / kScale;
    return Point{std::clamp(x, box.left, box.right), std::clamp(y, box.top, box.bottom)};
  };
  return Segment{span.enter > 0.0 ? at(span.enter) : segment.from,
                 span.leave < 1.0 ? at(span.leave) : segment.to};
}

}  // namespace toolkit
