#pragma once

#include <optional>
#include <string>

#include "window/controls.h"

namespace evolution {

// The body after simulated time t under uniform tangential acceleration: where it is on the track,
// and its vectors. Accelerations are halved, as they are drawn.
struct Body {
  double distance;  // v0*t + at*t^2/2 along the track, sketch units; negative behind the origin
  track::Vector place, velocity, halfTangential, halfCentripetal;
};

Body BodyAtTime(const track::Parameters& track, double time);

// What is printed at the mark of step i, `interval` steps after the last one: the reference
// distance at step 60, elsewhere the ratio of the last interval's distance to it. Nothing at the
// first marks, nor where the reference is 0 and a ratio would be no number.
std::optional<std::string> MarkLabel(const window::PathRecords& path, int i, int interval);

// One step of the run: moves the body by the time step, replaces its arrows and draws the whole
// path anew with its marks and labels. The run ends, with the timer disabled, past x = 30 or at the
// last entry of the records; there a further step changes nothing.
void StepTimeEvolution(window::Controls& firststep);

}  // namespace evolution
