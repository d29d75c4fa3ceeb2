#pragma once

#include "window/controls.h"

namespace scenes {

// Draws the track with its circles of curvature at the first crest and the first trough, the
// velocity and the acceleration arrows there, and explains them. Expects a cleared sketch in the
// standard coordinates and draws at the line width that it finds. Ends early, with neither text nor
// legend, at the first of the two points that the body does not reach.
void DrawCurvatureScene(window::Controls& firststep);

}  // namespace scenes
