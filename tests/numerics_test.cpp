#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "any_double.h"
#include "track/arc_length.h"
#include "track/carlson.h"
#include "track/geometry.h"

namespace {

using track::ArcLength;
using track::CarlsonRD;
using track::CarlsonRF;
using track::EllipticE;
using track::PhaseAtArcLength;
using track::Pi;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
const double kNaN = std::numeric_limits<double>::quiet_NaN();

double RelativeError(double value, double truth) {
  return std::abs(value - truth) / std::abs(truth);
}

struct CaughtMessages {
  std::vector<std::string> texts;
  CaughtMessages() {
    track::InvalidArgumentsReport() = [this](std::string_view text) { texts.emplace_back(text); };
  }
  ~CaughtMessages() { track::InvalidArgumentsReport() = nullptr; }
};

// Published values of Carlson's test cases, and the homogeneity RF(cx) = RF(x)/sqrt(c),
// RD(cx) = RD(x)/c^1.5 over scales where the arguments themselves nearly over- or underflow.
TEST(Carlson, ReferenceValuesAtAllScales) {
  for (const double c : {1.0, 1e-15, 1e-8, 1e8, 1e21, 1e100, 1e307}) {
    EXPECT_LT(RelativeError(CarlsonRF(0, c, 2 * c) * std::sqrt(c), 1.3110287771461), 3e-8) << c;
    EXPECT_LT(RelativeError(CarlsonRF(c, 2 * c, 0) * std::sqrt(c), 1.3110287771461), 3e-8) << c;
    EXPECT_LT(RelativeError(CarlsonRF(2 * c, 3 * c, 4 * c) * std::sqrt(c), 0.58408284167715), 3e-8);
    EXPECT_LT(RelativeError(CarlsonRF(c, c, c) * std::sqrt(c), 1.0), 1e-15) << c;
    if (c > 1e200) continue;  // RD itself underflows
    EXPECT_LT(RelativeError(CarlsonRD(0, 2 * c, c) * std::pow(c, 1.5), 1.7972103521034), 3e-8) << c;
    EXPECT_LT(RelativeError(CarlsonRD(2 * c, 3 * c, 4 * c) * std::pow(c, 1.5), 0.16510527294261),
              3e-8)
        << c;
    EXPECT_LT(RelativeError(CarlsonRD(c, c, c) * std::pow(c, 1.5), 1.0), 1e-15) << c;
  }
}

TEST(Carlson, InvalidArgumentsAreReportedOnceAndGiveZero) {
  struct Case {
    double (*integral)(double, double, double);
    double x, y, z;
    bool reported;
    double value;  // NaN: any number will do
  };
  const Case cases[] = {
      {CarlsonRF, -1, 1, 1, true, 0},         {CarlsonRD, -1, 1, 1, true, 0},
      {CarlsonRF, 1, 1, -1e-300, true, 0},    {CarlsonRF, 0, 0, 1, true, 0},
      {CarlsonRF, 1, 1e-38, 0, true, 0},      {CarlsonRF, 1, 1.6e-38, 0, false, kNaN},
      {CarlsonRD, 0, 0, 4.6e21, true, 0},     {CarlsonRD, 0, 0, 1, false, kInfinity},
      {CarlsonRD, 1e-25, 0, 1, false, kNaN},  {CarlsonRD, 0, 1.6e-25, 1e300, false, kNaN},
      {CarlsonRD, 1e-26, 0, 5e21, true, 0},   {CarlsonRD, 1, 2, 0, false, kInfinity},
      {CarlsonRF, 0, 0, 0, false, kInfinity}, {CarlsonRD, 0, 0, 0, false, kInfinity},
      {CarlsonRF, kInfinity, 1, 1, false, 0}, {CarlsonRD, 1, 1, kInfinity, false, 0},
  };
  for (const Case& c : cases) {
    CaughtMessages messages;
    const double value = c.integral(c.x, c.y, c.z);
    SCOPED_TRACE(::testing::Message() << c.x << ' ' << c.y << ' ' << c.z);
    EXPECT_EQ(messages.texts.size(), c.reported ? 1U : 0U);
    for (const auto& text : messages.texts) EXPECT_EQ(text, "invalid arguments in rf");
    if (std::isnan(c.value)) {
      EXPECT_TRUE(std::isfinite(value));
    } else {
      EXPECT_EQ(value, c.value);
    }
  }
  EXPECT_TRUE(std::isnan(CarlsonRF(kNaN, 1, 1)) && std::isnan(CarlsonRD(1, kNaN, 1)));
}

TEST(EllipticE, AgreesWithTheStandardLibrary) {
  double worst = 0;
  for (const double k : {1e-9, 0.1, 0.5, 0.9, 0.99, 0.9999, 0.999999}) {
    for (double phi = -Pi / 2; phi <= Pi / 2; phi += 0.00317) {
      worst = std::max(worst, RelativeError(EllipticE(phi, k), std::ellint_2(k, phi)));
      EXPECT_EQ(EllipticE(-phi, k), -EllipticE(phi, k));
    }
  }
  RecordProperty("worst", std::to_string(worst));
  EXPECT_LE(worst, 2e-8);
}

// The length is odd, continuous and true at every phase: against the quarter-period sums of the
// standard library, left of -Pi/2 as well as right of Pi/2.
TEST(ArcLength, ContinuesOverHalfPeriodsOnBothSides) {
  for (const double k : {0.0, 0.5, 0.894, 0.999}) {
    const double complete = std::comp_ellint_2(k);
    for (double u = -30; u <= 30; u += 0.0473) {
      const double half = std::round(u / Pi);
      const double truth = 2 * half * complete + std::ellint_2(k, u - half * Pi);
      EXPECT_NEAR(ArcLength(u, k), truth, 3e-8 * (1 + std::abs(truth))) << u << ' ' << k;
      EXPECT_EQ(ArcLength(-u, k), -ArcLength(u, k));
    }
    for (int quarter = -9; quarter <= 9; ++quarter) {
      EXPECT_NEAR(ArcLength(quarter * Pi / 2, k), quarter * complete, 3e-8 * std::abs(quarter));
    }
  }
  const auto before = track::EllipticEvaluations();
  EXPECT_EQ(ArcLength(0, 0.5), 0.0);
  EXPECT_EQ(track::EllipticEvaluations(), before);
}

TEST(PhaseAtArcLength, UndoesArcLengthWithBoundedWork) {
  for (const double k : {0.0, 0.3, 0.8, 0.99, 0.999999}) {
    const double Q = ArcLength(Pi / 2, k);
    for (double u = -25; u <= 60; u += 0.0731) {
      const double S = ArcLength(u, k);
      const auto before = track::EllipticEvaluations();
      const double found = PhaseAtArcLength(S, k, Q);
      EXPECT_LE(track::EllipticEvaluations() - before, 180U);
      const double guess = std::floor(S / Q) * Pi / 2 + Pi / 4;
      if (std::abs(S - ArcLength(guess, k)) > 1e-4) {
        EXPECT_NEAR(found, u, 3e-11) << u << ' ' << k;
      } else {
        EXPECT_EQ(found, guess);
      }
    }
    EXPECT_EQ(PhaseAtArcLength(0, k, Q), 0.0);
    const double inBand = ArcLength(Pi / 4, k) + 0.9e-4;
    EXPECT_EQ(PhaseAtArcLength(inBand, k, Q), Pi / 4);
    EXPECT_NE(PhaseAtArcLength(inBand + 0.2e-4, k, Q), Pi / 4);
  }
}

TEST(PhaseAtArcLength, ReturnsForEveryTargetAndQuarter) {
  const double quarter = ArcLength(Pi / 2, 0.7);
  for (const double Q : {quarter, 0.0, -1.0, 1e-300, 1e300, 0.01, kInfinity, kNaN}) {
    for (const double S : {0.0, 1.0, -7.3, 1e5, 1e14, 1e16, -1e18, 1e300, 1.7e308}) {
      const auto before = track::EllipticEvaluations();
      const double u = PhaseAtArcLength(S, 0.7, Q);
      EXPECT_LT(track::EllipticEvaluations() - before, 6000U) << S << ' ' << Q;
      if (S == 1.7e308) continue;  // its phase exceeds the largest double
      EXPECT_NEAR(ArcLength(u, 0.7), S, 1e-10 + 1e-15 * std::abs(S)) << S << ' ' << Q;
    }
    EXPECT_EQ(PhaseAtArcLength(-kInfinity, 0.7, Q), -kInfinity);
    EXPECT_TRUE(std::isnan(PhaseAtArcLength(kNaN, 0.7, Q)));
  }
}

// Against the curve itself: slope and curvature by differences, the exact length by adding chords.
TEST(Geometry, DescribesTheCurve) {
  for (const track::Parameters t :
       {track::Parameters{2, Pi / 12, 3, 2}, {3.5, Pi / 3, 0, -1}, {0.1, Pi / 180, 15, 3.5}}) {
    double length = 0;
    for (int i = 0; i < 20000; ++i) {
      const double x = 0.001 * i;
      length += std::hypot(0.001, track::Height(t, x + 0.001) - track::Height(t, x));
      if (i % 500 != 250) continue;
      const double h = 1e-4;
      const auto p = track::PointAt(t, x);
      const double slope = (track::Height(t, x + h) - track::Height(t, x - h)) / (2 * h);
      const double turn =
          std::atan(track::PointAt(t, x + h).slope) - std::atan(track::PointAt(t, x - h).slope);
      EXPECT_NEAR(p.slope, slope, 1e-6);
      EXPECT_NEAR(p.curvature, turn / (2 * h * std::sqrt(1 + slope * slope)), 1e-6);
      EXPECT_NEAR(p.curvature * p.radius, 1.0, 1e-12);
      EXPECT_NEAR(p.normal.Dot(p.tangent), 0.0, 1e-15);
      EXPECT_NEAR(track::ExactArcLength(t, x + 0.001), length, 1e-5 * (1 + length));
      EXPECT_NEAR(track::AbscissaAtDistance(t, track::ExactArcLength(t, x)), x, 2e-4 / t.frequency);
    }
    const double K = std::sqrt(1 + t.amplitude * t.amplitude);
    const double scene = K / t.frequency * std::ellint_2(t.amplitude / K, t.frequency * 1.5);
    EXPECT_NEAR(track::SceneArcLength(t, 1.5), scene, 1e-7 * scene);
  }
  EXPECT_EQ(track::PointAt({2, 1, 0, 0}, 0.0).curvature, 0.0);
  EXPECT_FALSE(track::SpeedAfter({2, 1, 3, -1}, 4.6).has_value());
  EXPECT_EQ(track::SpeedAfter({2, 1, 3, -1}, 4.5), 0.0);
}

// Special values in every combination, then random bit patterns.
TEST(Numerics, ReturnForEveryDouble) {
  const double special[] = {0.0,       -0.0,       5e-324, 1e-310,   2.3e-308, 1e-38,
                            1.5e-25,   0.5,        1.0,    1.5,      Pi / 2,   -Pi,
                            1e9,       4.5e21,     1e154,  8e307,    1.7e308,  -1.7e308,
                            kInfinity, -kInfinity, kNaN,   0.999999, 1 - 1e-16};
  for (const double a : special) {
    for (const double b : special) {
      for (const double c : special)
        ASSERT_EQ(FaultOfNumerics(a, b, c), "") << a << ' ' << b << ' ' << c;
    }
  }
  std::mt19937_64 random(5);
  for (int i = 0; i < 30000; ++i) {
    const auto any = [&] { return std::bit_cast<double>(random()); };
    const double a = any();
    const double b = i % 2 == 0 ? any() : std::abs(std::remainder(any(), 1.999));
    const double c = any();
    ASSERT_EQ(FaultOfNumerics(a, b, c), "") << std::hexfloat << a << ' ' << b << ' ' << c;
  }
}

}  // namespace
