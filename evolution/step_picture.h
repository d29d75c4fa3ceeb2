#pragma once

#include "window/controls.h"

namespace evolution {

// What a step of the run draws, but for the path, which is in the records.
struct StepPicture {
  int steps;         // of the run so far, with this one
  double frequency;  // of the track, radians per sketch unit
  window::Arrows before, now;
};

// Draws a step: the frequency, the body, its arrows in place of those before, and over it the whole
// path with its marks and labels. May be drawn again as long as the records and labels up to the
// step stay.
void DrawStep(sketch::Sketch& eikona, window::Module1& module, const StepPicture& step);

}  // namespace evolution
