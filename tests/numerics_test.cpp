#include <gtest/gtest.h>

#include <bit>
#include <random>
#include <tuple>

#include "any_double.h"

namespace {

using namespace track;

// Published values of Carlson's test cases, and the homogeneity RF(cx) = RF(x)/sqrt(c),
// RD(cx) = RD(x)/c^1.5 over scales where the arguments themselves nearly over- or underflow.
TEST(Carlson, ReferenceValuesAtAllScales) {
  for (const double c : {1.0, 1e-15, 1e-8, 1e8, 1e21, 1e100, 1e307}) {
    const double f = std::sqrt(c), d = std::pow(c, 1.5);
    EXPECT_NEAR(CarlsonRF(0, c, 2 * c) * f / 1.3110287771461, 1, 3e-8) << c;
    EXPECT_NEAR(CarlsonRF(2 * c, 3 * c, 4 * c) * f / 0.58408284167715, 1, 3e-8) << c;
    if (c > 1e200) continue;  // RD itself underflows
    EXPECT_NEAR(CarlsonRD(0, 2 * c, c) * d / 1.7972103521034, 1, 3e-8) << c;
    EXPECT_NEAR(CarlsonRD(2 * c, 3 * c, 4 * c) * d / 0.16510527294261, 1, 3e-8) << c;
  }
}

// ! is a report, # a number other than 0.
TEST(Carlson, InvalidArgumentsAreReportedOnceAndGiveZero) {
  const std::tuple<double (*)(double, double, double), double, double, double, std::string>
      cases[] = {{CarlsonRD, -1, 1, 1, "!0"},         {CarlsonRF, 1, 1, -1e-300, "!0"},
                 {CarlsonRF, 0, 0, 1, "!0"},          {CarlsonRF, 1, 1e-38, 0, "!0"},
                 {CarlsonRF, 1, 1.6e-38, 0, "#"},     {CarlsonRD, 0, 0, 4.6e21, "!0"},
                 {CarlsonRD, 0, 0, 4.4e21, "inf"},    {CarlsonRD, 1e-25, 0, 1, "#"},
                 {CarlsonRD, 0, 1.6e-25, 1e300, "0"}, {CarlsonRD, 1e-26, 0, 5e21, "!0"},
                 {CarlsonRD, 1, 2, 0, "inf"},         {CarlsonRF, 0, 0, 0, "inf"},
                 {CarlsonRF, INFINITY, 1, 1, "0"},    {CarlsonRD, 1, 1, INFINITY, "0"},
                 {CarlsonRF, NAN, 1, 1, "nan"},       {CarlsonRD, 1, NAN, 1, "nan"}};
  for (const auto& [integral, x, y, z, want] : cases) {
    std::string outcome;
    InvalidArgumentsReport() = [&](std::string_view) { outcome += '!'; };
    const double value = integral(x, y, z);
    outcome += std::isnan(value) ? "nan" : std::isinf(value) ? "inf" : value == 0 ? "0" : "#";
    EXPECT_EQ(outcome, want) << x << ' ' << y << ' ' << z;
  }
  InvalidArgumentsReport() = nullptr;
}

// The length is odd, continuous and true at every phase: against the quarter-period sums of the
// standard library, left of -Pi/2 as well as right of Pi/2. Its inverse takes a bounded work and is
// the guess where that is as near as 10^-4.
TEST(ArcLength, IsTheEllipticIntegralOverAllHalfPeriodsAndIsUndone) {
  for (const double k : {0.0, 1e-9, 0.5, 0.894, 0.99, 0.9999, 0.999999}) {
    const double Q = ArcLength(Pi / 2, k);
    for (int i = 1; i <= 1280; ++i) {
      const double u = i * Pi / 128, half = std::round(u / Pi), S = ArcLength(u, k);
      const double truth = 2 * half * std::comp_ellint_2(k) + std::ellint_2(k, u - half * Pi);
      ASSERT_NEAR(S / truth, 1, 2e-8) << u << ' ' << k;
      ASSERT_EQ(ArcLength(-u, k), -S);
      ASSERT_EQ(Arc(k).Length(-u), -S);
      for (const double side : {1.0, -1.0}) {
        const double guess = std::floor(side * S / Q) * Pi / 2 + Pi / 4;
        const bool accepted = std::abs(side * S - ArcLength(guess, k)) <= 1e-4;
        const auto [found, evaluations] = FindPhase(Arc(k), side * S, Q);
        EXPECT_LE(evaluations, 80);
        EXPECT_EQ(PhaseAtArcLength(side * S, k, Q), found);
        EXPECT_NEAR(found, accepted ? guess : side * u, accepted ? 0 : 3e-11) << u << ' ' << k;
      }
    }
    EXPECT_EQ(PhaseAtArcLength(ArcLength(Pi / 4, k) + 0.9e-4, k, Q), Pi / 4);
    EXPECT_NE(PhaseAtArcLength(ArcLength(Pi / 4, k) + 1.1e-4, k, Q), Pi / 4);
    EXPECT_TRUE(PhaseAtArcLength(-INFINITY, k, Q) < 0 && std::isnan(PhaseAtArcLength(NAN, k, Q)));
  }
}

// Special values in every combination, then random bit patterns.
TEST(Numerics, ReturnForEveryDouble) {
  const double special[] = {0.0,      -0.0,      5e-324,       1e-310, 2.3e-308, 1e-38,
                            1.5e-25,  0.5,       1.0,          1.5,    Pi / 2,   -Pi,
                            1e9,      4.5e21,    1e154,        8e307,  1.7e308,  -1.7e308,
                            HUGE_VAL, -HUGE_VAL, std::nan(""), 0.7,    0.999999, 1 - 1e-16};
  std::mt19937_64 random(5);
  for (int i = 0; i < 24 * 24 * 24 + 30000; ++i) {
    const bool listed = i < 24 * 24 * 24;
    const auto any = [&](int n) { return listed ? special[n] : std::bit_cast<double>(random()); };
    const double a = any(i % 24), b = any(i / 24 % 24), c = any(i / 576 % 24);
    const double modulus = listed || i % 2 == 0 ? b : std::abs(std::remainder(b, 1.999));
    ASSERT_EQ(FaultOfNumerics(a, modulus, c), "") << std::hexfloat << a << ' ' << b << ' ' << c;
  }
}

}  // namespace
