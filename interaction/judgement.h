#pragma once

#include <optional>

#include "track/motion.h"
#include "window/controls.h"

namespace interaction {

// What can be said of a force that shall explain the motion at a point: its shape and its
// tangential acceleration. Forces are accelerations of a unit mass, in sketch units.
struct Judgement {
  // The net force is against the tangential acceleration, or the force against the motion.
  bool wrongForTangential;
  // The force has a part toward the centre of curvature.
  bool rightForShape;
  // What would have to be added for the centripetal force |an|; nothing where an = 0, for then
  // there is no side for it to point to.
  std::optional<track::Vector> extraForShape;
  // What would have to be added for the tangential part of the net force to be the drawn
  // tangential acceleration; nothing where the body neither moves nor accelerates.
  std::optional<track::Vector> extraForTangential;
};

// Judges a force together with the friction at a point. Comparisons are strict: a product of
// exactly 0 is neither positive nor negative.
Judgement Judge(const track::Motion& motion, const track::Vector& force);

// Judges the force from the last press to (x, y), in sketch units, and draws it with the verdicts
// and the forces still needed over the picture of the point. Draws nothing at all where the body
// never arrives.
void JudgeForce(window::Controls& firststep, float x, float y);

}  // namespace interaction
