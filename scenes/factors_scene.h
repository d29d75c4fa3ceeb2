#pragma once

#include "window/controls.h"

namespace scenes {

// Draws the track and, at fifteen stations along it, the velocity, the centripetal and the total
// acceleration; explains what they depend on. Expects a cleared sketch in the standard coordinates.
// Ends early, with neither text nor legend, at the first point that the body does not reach.
void DrawFactorsScene(window::Controls& firststep);

}  // namespace scenes
