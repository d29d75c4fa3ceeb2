#pragma once

#include <optional>

#include "track/motion.h"
#include "window/controls.h"

namespace interaction {

// Friction is drawn and judged with this length, in sketch units.
inline constexpr double kFriction = 3.5;

// Friction on the body: of fixed length, against the velocity; none where the body stands still.
track::Vector Friction(const track::Motion& motion);

// Whether a place (sketch units) is near enough to the track, up or down, to be picked: less than
// 0.1. Its abscissa is the picked one.
bool IsOnTrack(const track::Parameters& track, const track::Vector& place);

// The motion at the track's point over `x`, or nothing where the body never arrives. A radius of
// curvature above 10^15 counts as a straight track, without centripetal acceleration.
std::optional<track::Motion> MotionAtPicked(const track::Parameters& track, double x);

// Clears the sketch and draws the motion at the picked point (sketch units): the circle of
// curvature, velocity, acceleration and, in the guess mode, friction. A point 0.1 or farther above
// or below the track is rejected and shows the circles at crest and trough instead. A point that
// the body never reaches shows the track alone.
void DrawPointVectors(window::Controls& firststep, float x, float y);

}  // namespace interaction
