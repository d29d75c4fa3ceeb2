#pragma once

#include <optional>

#include "track/geometry.h"

namespace track {

// How the body moves through a point of the track, as the pictures without time see it: uniformly
// accelerated along the path, v^2 = v0^2 + 2*at*s, with s the scene arc length.
struct Motion {
  TrackPoint point;
  double speed;             // sketch units per time
  double centripetal;       // signed, along the point's normal; per time^2
  Vector velocity;          // along the tangent, drawn at its true length
  Vector centripetalArrow;  // the acceleration vectors as they are drawn: A/4 times their value,
  Vector tangentialArrow;   // so that they grow with the amplitude
};

// The motion along one track.
class Course {
 public:
  explicit Course(const Parameters& track) : track_(track), distance_(track) {}

  // At a point of the track, or nothing where the body never arrives.
  std::optional<Motion> MotionAt(const TrackPoint& point) const;
  // At the track's point over `x`.
  std::optional<Motion> MotionAt(double x) const { return MotionAt(PointAt(track_, x)); }

 private:
  Parameters track_;
  SceneDistance distance_;
};

}  // namespace track
