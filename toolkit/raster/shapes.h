#pragma once

#include "toolkit/raster/pixels.h"

namespace toolkit::raster {

// What a shape leaves on the pixels that it touches.
struct Ink {
  std::uint32_t colour;
  // Smooth ink lets a pixel at the shape's edge keep part of its own colour. Crisp ink paints each
  // pixel whose centre lies in the shape, and paints it whole, so nothing thinner survives under
  // it.
  bool smooth = true;
};

// Shapes on a picture, cut at its edges; coordinates as on a Canvas. How much of a pixel a shape
// covers follows from the distance of the pixel's centre to the shape's outline, which is good to
// the eye at any angle, needs no path, and for a ring stays exact at any radius.

// The segment, `width` pixels wide, with square ends that reach half the width beyond its own.
void PaintLine(const Pixels& picture, Point from, Point to, double width, const Ink& ink);

// The outline of the circle, `width` pixels wide. Any finite radius.
void PaintRing(const Pixels& picture, const CircleShape& circle, double width, const Ink& ink);

void PaintDisc(const Pixels& picture, Point centre, double radius, const Ink& ink);

}  // namespace toolkit::raster
