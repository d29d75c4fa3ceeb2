#include "track/arc_length.h"

#include <cmath>
#include <limits>

#include "track/carlson.h"

namespace track {
namespace {

std::uint64_t evaluations = 0;

constexpr double kFirstStep = Pi / 20.0;
constexpr double kAcceptanceBand = 1e-4;
constexpr double kStepFloor = 1e-11;

// From a guess in the right quarter period the search takes some 75 steps. More than this means
// that the guess was placed with something else than the quarter arc.
constexpr int kMaxSteps = 1000;

// What rounding leaves uncertain of a length that is all whole half periods.
constexpr double kLastDigits = 1e-14;

constexpr double kNotFound = std::numeric_limits<double>::quiet_NaN();

// E(Pi/2, k) of the modulus that was asked for last. A picture asks for the same one four hundred
// times, a search for a phase sixty times.
double CompleteE(double k) {
  static double known = kNotFound;
  static double value = 0.0;
  if (k != known) {
    value = EllipticE(Pi / 2.0, k);
    known = k;
  }
  return value;
}

// One search from the guess that Q places. kNotFound when it has not ended.
double Search(double S, double k, double Q) {
  double u = std::floor(S / Q) * (Pi / 2.0) + Pi / 4.0;
  double h = kFirstStep;
  double F = ArcLength(u, k);
  int d = S > F ? 1 : -1;
  if (!(std::abs(S - F) > kAcceptanceBand)) return u;
  for (int step = 0; step < kMaxSteps; ++step) {
    const double next = S > F ? u + h : u - h;
    // u has no digit left below the step: this is the target as nearly as doubles tell, unless the
    // guess was placed wrongly and lies far off.
    if (next == u) return std::abs(S - F) <= kLastDigits * std::abs(S) ? u : kNotFound;
    u = next;
    F = ArcLength(u, k);
    if ((d > 0 && S > F) || (d < 0 && S < F)) continue;
    if (F == S || std::isnan(F)) return u;
    d = -d;
    h /= 2.0;
    if (h < kStepFloor) return u;
  }
  return kNotFound;
}

}  // namespace

std::uint64_t EllipticEvaluations() {
  return evaluations;
}

double EllipticE(double phi, double k) {
  ++evaluations;
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
  const double n = std::floor(u / Pi);
  const double m = std::floor(2.0 * u / Pi);
  const double Ek = CompleteE(k);
  if (std::fmod(m, 2.0) == 1.0) {
    // The second half of a half period: measured back from its end.
    return (m + 1.0) * Ek - EllipticE((n + 1.0) * Pi - u, k);
  }
  return EllipticE(u - n * Pi, k) + m * Ek;
}

double PhaseAtArcLength(double S, double k, double Q) {
  if (!std::isfinite(S)) return S;
  const double found = std::isfinite(S / Q) ? Search(S, k, Q) : kNotFound;
  if (!std::isnan(found)) return found;
  // Q was no quarter arc. The true one places the guess well; where even that does not end (a
  // modulus outside its domain), the quarter arcs alone give the phase.
  const double quarter = ArcLength(Pi / 2.0, k);
  const double second = std::isfinite(S / quarter) ? Search(S, k, quarter) : kNotFound;
  return std::isnan(second) ? S / quarter * (Pi / 2.0) : second;
}

}  // namespace track
