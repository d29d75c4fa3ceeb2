#pragma once

#include <optional>

#include "toolkit/canvas.h"

namespace toolkit {

struct Segment {
  Point from, to;
};

struct Box {
  double left, top, right, bottom;
};

// The part of the segment that lies in the box, or nothing. Any finite coordinates, up to the
// largest double. An end that lies inside is returned as it is.
// Source: the parametric clipping of Liang and Barsky, on coordinates scaled down so that their
// differences cannot overflow.
std::optional<Segment> Clip(const Segment& segment, const Box& box);

}  // namespace toolkit
