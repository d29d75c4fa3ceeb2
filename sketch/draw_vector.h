#pragma once

#include "sketch/sketch.h"

namespace sketch {

// The distance between (xa, ya) and (xb, yb), in the units of its arguments.
double PointDistance(double xa, double ya, double xb, double yb);

// Draws a vector as an arrow: a shaft from (x0, y0) to (x0 + vx, y0 + vy) and an open head of two
// barbs at 30 degrees, each a seventy-fifth of the diagonal of the surface, all in user units of
// the surface, at its current line width and style. The colour's parts are 0 to 255.
// An arrow shorter than a barb / sqrt(3) is not drawn at all: its head would be larger than itself.
void DrawVector(double x0, double y0, double vx, double vy, Sketch& surface, int red, int green,
                int blue);

}  // namespace sketch
