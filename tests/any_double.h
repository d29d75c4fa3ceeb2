#pragma once

#include <cmath>
#include <cstdint>
#include <string>

#include "track/arc_length.h"
#include "track/carlson.h"
#include "track/motion.h"

// What holds of the numerics for any three doubles: each function returns, the search after a
// bounded number of steps, and where its arguments are in its domain the result is a number with
// the right properties. Returns what does not hold, or an empty text.
inline std::string FaultOfNumerics(double a, double b, double c) {
  const double rf = track::CarlsonRF(a, b, c), rd = track::CarlsonRD(a, b, c);
  const auto usual = [](double v) { return v > 1e-37 && v < 1e150; };
  if (usual(a) && usual(b) && usual(c)) {
    if (!(rf > 0 && std::isfinite(rf))) return "RF is no positive number";
    if (std::abs(rf - track::CarlsonRF(c, b, a)) > 6e-8 * rf) return "RF is not symmetric";
    if (usual(a * a) && usual(b * b) && usual(c * c) && !(rd > 0)) return "RD is not positive";
  }
  // Placed with the quarter arc, and with something else. A guess inside the acceptance band comes
  // back as it was placed, 10^-4 off; a huge phase has no digits left.
  for (const double quarter : {track::ArcLength(track::Pi / 2, b), c}) {
    const double missed = std::abs(track::ArcLength(track::PhaseAtArcLength(a, b, quarter), b) - a);
    if (!(b >= 0 && b <= 0.999999 && std::abs(a) < 1e300)) continue;
    if (!(missed <= 1.0001e-4 + 1e-14 * std::abs(a))) return "the inverse misses";
    if (!(std::abs(track::ArcLength(a, b)) <= std::abs(a) * (1 + 1e-7))) return "too long an arc";
  }
  track::Course({a, b, c, a}).MotionAt(c);
  track::AbscissaAtDistance({a, b, c, a}, a);
  if (track::FindPhase(track::Arc(b), a, c).evaluations > 2100) return "too long a search";
  return {};
}
