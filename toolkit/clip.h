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
// Source: clipping against one edge after the other (Sutherland and Hodgman), with each crossing
// counted from the end nearer to it.
std::optional<Segment> Clip(const Segment& segment, const Box& box);

}  // namespace toolkit
