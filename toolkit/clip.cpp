#include "toolkit/clip.h"

#include <algorithm>

namespace toolkit {
namespace {

constexpr double kScale = 0.25;

// The parameters 0 to 1 along the segment that are still inside.
struct Span {
  double enter = 0.0;
  double leave = 1.0;

  // Keeps the side where from + t*delta <= limit; false when nothing is left.
  bool Keep(double from, double delta, double limit) {
    const double room = limit - from;
    if (delta == 0.0) return room >= 0.0;
    const double t = room / delta;
    if (delta > 0.0) {
      leave = std::min(leave, t);
    } else {
      enter = std::max(enter, t);
    }
    return enter <= leave;
  }
};

}  // namespace

std::optional<Segment> Clip(const Segment& segment, const Box& box) {
  const Point a{kScale * segment.from.x, kScale * segment.from.y};
  const Point b{kScale * segment.to.x, kScale * segment.to.y};
  const double dx = b.x - a.x;
  const double dy = b.y - a.y;
  Span span;
  if (!span.Keep(a.x, dx, kScale * box.right) || !span.Keep(-a.x, -dx, -kScale * box.left) ||
      !span.Keep(a.y, dy, kScale * box.bottom) || !span.Keep(-a.y, -dy, -kScale * box.top)) {
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
