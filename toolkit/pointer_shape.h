#pragma once

#include <optional>
#include <vector>

#include "toolkit/canvas.h"

namespace toolkit {

// Where the keyboard points on a picture, in the pixels of its canvas, and the tip of what it pulls
// from there. Shown over the picture while the box has the focus, never part of it.
struct KeyPointer {
  Point place;
  std::optional<Point> tip;
};

// A piece of what is painted over a picture: a segment, or a ring around `from` if it has a radius.
// All in the pixels of a canvas.
struct Stroke {
  Point from, to;
  double radius;
  double width;
  Colour colour;
};

// The keyboard's pointer: a ring around the place and a dashed line to a small one at the tip, on a
// white edge that keeps them visible on any ink. `density`: pixels to one at 96 dots per inch. The
// strokes are painted in their order.
std::vector<Stroke> PointerShape(const KeyPointer& at, double density);

}  // namespace toolkit
