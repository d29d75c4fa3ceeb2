#include "track/geometry.h"

#include <cmath>

namespace track {
namespace {

// The ellipse whose arc is as long as the curve's: a curve of maximal slope m has the modulus
// m/sqrt(1 + m^2) and the length sqrt(1 + m^2) for each unit of E.
struct Ellipse {
  explicit Ellipse(double m) : stretch(std::sqrt(1.0 + m * m)), modulus(m / stretch) {}
  double stretch, modulus;
};

}  // namespace

double Length(const Vector& vector) {
  return std::sqrt(vector.Dot(vector));
}

double Height(const Parameters& track, double x) {
  return track.amplitude * std::sin(track.frequency * x);
}

TrackPoint PointAt(const Parameters& track, double x) {
  const double A = track.amplitude;
  const double w = track.frequency;
  TrackPoint point{};
  point.x = x;
  const double sine = std::sin(w * x);
  point.y = A * sine;
  point.slope = A * w * std::cos(w * x);
  const double rise = 1.0 + point.slope * point.slope;
  const double cosine = 1.0 / std::sqrt(rise);
  point.tangent = {cosine, point.slope * cosine};
  point.normal = {-point.tangent.y, point.tangent.x};
  const double second = -A * w * w * sine;
  if (second != 0.0) {
    point.radius = rise * std::sqrt(rise) / second;
    point.curvature = 1.0 / point.radius;
  }
  return point;
}

double CentripetalAcceleration(double speed, double curvature) {
  return speed * speed * curvature;
}

double AbscissaAtDistance(const Parameters& track, double distance) {
  const Ellipse ellipse(track.amplitude * track.frequency);
  const Arc arc(ellipse.modulus);
  const double target = distance * track.frequency / ellipse.stretch;
  return FindPhase(arc, target, arc.Quarter()).u / track.frequency;
}

SceneDistance::SceneDistance(const Parameters& track)
    : arc_(Ellipse(track.amplitude).modulus),
      scale_(Ellipse(track.amplitude).stretch / track.frequency),
      frequency_(track.frequency) {
}

std::optional<double> SpeedAfter(const Parameters& track, double distance) {
  const double square =
      track.initialSpeed * track.initialSpeed + 2.0 * track.tangentialAcceleration * distance;
  if (!(square >= 0.0)) return std::nullopt;
  return std::sqrt(square);
}

}  // namespace track
