#include "track/arc_length.h"

#include <cmath>
#include <limits>

#include "track/carlson.h"

namespace track {
namespace {

constexpr double kFirstStep = Pi / 20.0;
constexpr double kAcceptanceBand = 1e-4;
constexpr double kStepFloor = 1e-11;

// From a guess in the right quarter period the search takes some 75 steps. More than this means
// that the guess was placed with something else than the quarter arc.
constexpr int kMaxSteps = 1000;

// What rounding leaves uncertain of a length that is all whole half periods.
constexpr double kLastDigits = 1e-14;

constexpr double kNotFound = std::numeric_limits<double>::quiet_NaN();

// E(u, k), with `quarter` = E(Pi/2, k) for phases beyond Pi/2.
double Continued(double u, double k, double quarter) {
  const double n = std::floor(u / Pi);
  const double m = std::floor(2.0 * u / Pi);
  if (std::fmod(m, 2.0) == 1.0) {
    // The second half of a half period: measured back from its end.
    return (m + 1.0) * quarter - EllipticE((n + 1.0) * Pi - u, k);
  }
  return EllipticE(u - n * Pi, k) + m * quarter;
}

// One search from the guess that Q places. kNotFound when it has not ended.
FoundPhase Search(const Arc& arc, double S, double Q) {
  double u = std::floor(S / Q) * (Pi / 2.0) + Pi / 4.0;
  double h = kFirstStep;
  double F = arc.Length(u);
  int d = S > F ? 1 : -1;
  if (!(std::abs(S - F) > kAcceptanceBand)) return {u, 1};
  for (int step = 1; step <= kMaxSteps; ++step) {
    const double next = S > F ? u + h : u - h;
    // u has no digit left below the step: this is the target as nearly as doubles tell, unless the
    // guess was placed wrongly and lies far off.
    if (next == u) return {std::abs(S - F) <= kLastDigits * std::abs(S) ? u : kNotFound, step};
    u = next;
    F = arc.Length(u);
    if ((d > 0 && S > F) || (d < 0 && S < F)) continue;
    if (F == S || std::isnan(F)) return {u, step + 1};
    d = -d;
    h /= 2.0;
    if (h < kStepFloor) return {u, step + 1};
  }
  return {kNotFound, kMaxSteps + 1};
}

}  // namespace

double EllipticE(double phi, double k) {
  const double s = std::sin(phi);
  const double cc = std::cos(phi) * std::cos(phi);
  const double sk = s * k;
  const double q = (1.0 - sk) * (1.0 + sk);
  return s * (CarlsonRF(cc, q, 1.0) - sk * sk * CarlsonRD(cc, q, 1.0) / 3.0);
}

double ArcLength(double u, double k) {
  if (u == 0.0) return 0.0;
  if (!std::isfinite(u)) return u;
  if (u < -Pi / 2.0) return -ArcLength(-u, k);
  if (u <= Pi / 2.0) return EllipticE(u, k);
  return Continued(u, k, EllipticE(Pi / 2.0, k));
}

Arc::Arc(double k) : k_(k), quarter_(EllipticE(Pi / 2.0, k)) {
}

double Arc::Length(double u) const {
  if (std::abs(u) <= Pi / 2.0 || !std::isfinite(u)) return ArcLength(u, k_);
  const double length = Continued(std::abs(u), k_, quarter_);
  return u < 0.0 ? -length : length;
}

FoundPhase FindPhase(const Arc& arc, double S, double Q) {
  if (!std::isfinite(S)) return {S, 0};
  const FoundPhase found = std::isfinite(S / Q) ? Search(arc, S, Q) : FoundPhase{kNotFound, 0};
  if (!std::isnan(found.u)) return found;
  // Q was no quarter arc. The true one places the guess well; where even that does not end (a
  // modulus outside its domain), the quarter arcs alone give the phase.
  const double all = S / arc.Quarter();
  const FoundPhase second = std::isfinite(all) ? Search(arc, S, arc.Quarter()) : found;
  const double u = std::isnan(second.u) ? all * (Pi / 2.0) : second.u;
  return {u, found.evaluations + second.evaluations};
}

double PhaseAtArcLength(double S, double k, double Q) {
  return FindPhase(Arc(k), S, Q).u;
}

}  // namespace track
