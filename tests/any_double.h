#pragma once

#include <cmath>
#include <cstdint>
#include <string>

#include "track/arc_length.h"
#include "track/carlson.h"
#include "track/geometry.h"
#include "track/motion.h"

// What holds of the numerics for any three doubles: each function returns, after a bounded number
// of integrals, and where its arguments are in its domain the result is a number with the right
// properties. Returns what does not hold, or an empty text.
inline std::string FaultOfNumerics(double a, double b, double c) {
  using track::ArcLength;
  const auto before = track::EllipticEvaluations();
  const double rf = track::CarlsonRF(a, b, c);
  const double rd = track::CarlsonRD(a, b, c);
  const auto usual = [](double v) { return v > 1e-37 && v < 1e150; };
  if (usual(a) && usual(b) && usual(c)) {
    if (!(rf > 0 && std::isfinite(rf))) return "RF is no positive number";
    if (std::abs(rf - track::CarlsonRF(c, b, a)) > 6e-8 * rf) return "RF is not symmetric";
    if (usual(a * a) && usual(b * b) && usual(c * c) && !(rd > 0)) return "RD is not positive";
  }
  const double length = ArcLength(a, b);
  const double u = track::PhaseAtArcLength(a, b, c);
  const double phase = track::PhaseAtArcLength(a, b, ArcLength(track::Pi / 2, b));
  if (b >= 0 && b <= 0.999999 && std::abs(a) < 1e12) {
    if (!(std::abs(length) <= std::abs(a) * (1 + 1e-7))) return "the arc is longer than its phase";
    // A guess inside the acceptance band comes back as it was placed, 10^-4 off.
    if (!(std::abs(ArcLength(phase, b) - a) <= 1.0001e-4)) return "the inverse misses";
    if (std::isnan(u)) return "no phase for a wrong quarter";
  }
  const track::Parameters odd{a, b, c, a};
  track::MotionAt(odd, c);
  track::AbscissaAtDistance(odd, a);
  if (track::EllipticEvaluations() - before > 30000) return "too many integrals";
  return {};
}
