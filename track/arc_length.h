#pragma once

#include <numbers>

namespace track {

// 4*atan(1).
inline constexpr double Pi = std::numbers::pi;

// The length of a sine curve in phase units: a point at phase u, a modulus k with 0 <= k < 1, and
// the integral E(u, k) that grows with the length. A scale turns it into sketch units (see
// geometry.h). All arguments and results are plain doubles.

// E(phi, k) = integral from 0 to phi of sqrt(1 - k^2 sin^2 t) dt, Legendre's incomplete elliptic
// integral of the second kind, for |phi| <= Pi/2 and 0 <= k < 1 (k is the modulus, not its square).
// Odd in phi. Relative error at most 1.7e-8 for k <= 0.999999 (measured on 2 million arguments
// against the standard library).
// Outside: taken by the sine and cosine of phi, which is not the integral; k > 1 may be reported as
// invalid (see carlson.h); NaN where an argument is NaN or infinite.
// Source: Carlson (1979); with s = sin(phi), E = s*(RF(cos^2, q, 1) - (sk)^2 * RD(cos^2, q, 1)/3)
// and q = 1 - (sk)^2.
double EllipticE(double phi, double k);

// E(u, k) for every phase: odd, increasing, growing by 2*E(Pi/2, k) in each half period.
// Infinite u gives itself, NaN gives NaN.
double ArcLength(double u, double k);

// The same for many phases of one modulus, whose complete integral is worked out once.
class Arc {
 public:
  explicit Arc(double k);

  double Length(double u) const;               // E(u, k)
  double Quarter() const { return quarter_; }  // E(Pi/2, k)

 private:
  double k_, quarter_;
};

// The phase u with ArcLength(u, k) = S, where Q = ArcLength(Pi/2, k) places the first guess.
// A guess within 1e-4 of the target is returned unrefined; otherwise u is good to about 1e-11.
// Returns for every input after at most a few thousand evaluations: an infinite S gives itself,
// NaN gives NaN; a target so large that a step no longer changes u gives the nearest u reached; a Q
// that is not the quarter arc costs a longer search.
double PhaseAtArcLength(double S, double k, double Q);

// The same for an arc that is known, and how many lengths the search has evaluated.
struct FoundPhase {
  double u;
  int evaluations;
};
FoundPhase FindPhase(const Arc& arc, double S, double Q);

}  // namespace track
