#pragma once

#include <optional>

#include "track/arc_length.h"

namespace track {

// The model that every picture works on: a body on the track y = A*sin(w*x). Lengths are sketch
// units, angles radians, times simulated time (there is no mapping to seconds). Pure functions of
// their arguments, defined for all finite numbers unless said otherwise.

// What the learner sets.
struct Parameters {
  double amplitude;               // A, sketch units
  double frequency;               // w, radians per sketch unit
  double initialSpeed;            // v0, sketch units per time
  double tangentialAcceleration;  // at, sketch units per time^2; negative slows the body down
};

struct Vector {
  double x = 0.0;
  double y = 0.0;

  Vector operator+(const Vector& o) const { return {x + o.x, y + o.y}; }
  Vector operator-(const Vector& o) const { return {x - o.x, y - o.y}; }
  Vector operator*(double f) const { return {x * f, y * f}; }
  Vector operator-() const { return {-x, -y}; }
  // The scalar product.
  double Dot(const Vector& o) const { return x * o.x + y * o.y; }
};

double Length(const Vector& vector);

// y at x.
double Height(const Parameters& track, double x);

// The shape of the track at one of its points.
struct TrackPoint {
  double x = 0.0;
  double y = 0.0;
  double slope;      // y' = A*w*cos(w*x)
  Vector tangent;    // unit tangent (cos, sin) of the slope's angle: toward increasing x
  Vector normal;     // the tangent turned a quarter turn anticlockwise
  double radius;     // signed radius of curvature R = (1 + y'^2)^1.5 / y''; 0 where y'' = 0
  double curvature;  // signed: 1/R, positive where the track bends upward; 0 where y'' = 0
};

TrackPoint PointAt(const Parameters& track, double x);

// Centripetal acceleration v^2 * curvature along the normal; its sign says toward which side.
double CentripetalAcceleration(double speed, double curvature);

// The x at this distance from the origin along the track, by the exact rule: the distance to x is
// K*E(w*x, k) with k = A*w/sqrt(1 + (A*w)^2) and K = sqrt(1 + (A*w)^2)/w. Good to about 1e-11 in
// phase, or to 1e-4 where the search's first guess is as near (see PhaseAtArcLength). Any distance;
// negative ones lie behind the origin.
double AbscissaAtDistance(const Parameters& track, double distance);

// The distance as the pictures without time count it: K*E(w*x, k) with k = A/sqrt(1 + A^2) and
// K = sqrt(1 + A^2)/w. It equals the exact one for w = 1 and is the longer for smaller frequencies.
// For many places of one track, whose complete integral is worked out once.
class SceneDistance {
 public:
  explicit SceneDistance(const Parameters& track);

  // From the origin to x, in sketch units.
  double To(double x) const { return scale_ * arc_.Length(frequency_ * x); }

 private:
  Arc arc_;
  double scale_, frequency_;
};

// The speed after `distance` under the tangential acceleration, v = sqrt(v0^2 + 2*at*s), or nothing
// where the body never arrives (v0^2 + 2*at*s < 0) or the distance is no number.
std::optional<double> SpeedAfter(const Parameters& track, double distance);

}  // namespace track
