#include "track/carlson.h"

#include <cmath>
#include <limits>

namespace track {
namespace {

// Arguments from the smallest to the largest double need fewer than 30 rounds: each halves the
// logarithm of their ratio, then their distance shrinks fourfold. Only sums that are 0, infinite or
// NaN never settle.
constexpr int kMaxDuplications = 60;

double LargestDeviation(double dx, double dy, double dz) {
  return MaxOfTwo(MaxOfTwo(std::abs(dx), std::abs(dy)), std::abs(dz));
}

bool InvalidArguments(double x, double y, double z, double tiny, double upperBound) {
  if (!(MinOfTwo(MinOfTwo(x, y), z) < 0.0)) {
    const double smallestSum = MinOfTwo(MinOfTwo(x + y, x + z), y + z);
    const double largest = MaxOfTwo(MaxOfTwo(x, y), z);
    if (!(smallestSum < tiny && largest > upperBound)) return false;
  }
  if (InvalidArgumentsReport()) InvalidArgumentsReport()("invalid arguments in rf");
  return true;
}

// The value where the duplication does not settle. Finite arguments that do not vanish have only
// overflowed: both integrals are homogeneous, so the same integral of arguments 2^-64 as large is
// 2^(64*degree) times theirs.
double Unsettled(double (*integral)(double, double, double), double x, double y, double z,
                 double scaleBack) {
  if (std::isnan(x + y + z)) return std::numeric_limits<double>::quiet_NaN();
  if (std::isinf(x) || std::isinf(y) || std::isinf(z)) return 0.0;
  constexpr double kLarge = 0x1p+960;
  if (x > kLarge || y > kLarge || z > kLarge) {
    return integral(x * 0x1p-64, y * 0x1p-64, z * 0x1p-64) * scaleBack;
  }
  return std::numeric_limits<double>::infinity();
}

}  // namespace

std::function<void(std::string_view)>& InvalidArgumentsReport() {
  static std::function<void(std::string_view)> report;
  return report;
}

double MaxOfTwo(double a, double b) {
  return a < b ? b : a;
}

double MinOfTwo(double a, double b) {
  return a < b ? a : b;
}

double CarlsonRF(double x, double y, double z) {
  constexpr double ERRTOL = 0.08;
  constexpr double TINY = 1.5e-38;
  constexpr double THIRD = 1.0 / 3.0;
  constexpr double C1 = 1.0 / 24.0;
  constexpr double C2 = 0.1;
  constexpr double C3 = 3.0 / 44.0;
  constexpr double C4 = 1.0 / 14.0;

  if (InvalidArguments(x, y, z, TINY, 0.0)) return 0.0;
  double xt = x;
  double yt = y;
  double zt = z;
  for (int round = 0; round < kMaxDuplications; ++round) {
    const double sx = std::sqrt(xt);
    const double sy = std::sqrt(yt);
    const double sz = std::sqrt(zt);
    const double lambda = sx * (sy + sz) + sy * sz;
    xt = 0.25 * (xt + lambda);
    yt = 0.25 * (yt + lambda);
    zt = 0.25 * (zt + lambda);
    const double ave = THIRD * (xt + yt + zt);
    const double dx = (ave - xt) / ave;
    const double dy = (ave - yt) / ave;
    const double dz = (ave - zt) / ave;
    if (LargestDeviation(dx, dy, dz) < ERRTOL) {
      const double e2 = dx * dy - dz * dz;
      const double e3 = dx * dy * dz;
      return (1.0 + (C1 * e2 - C2 - C3 * e3) * e2 + C4 * e3) / std::sqrt(ave);
    }
  }
  return Unsettled(CarlsonRF, x, y, z, 0x1p-32);
}

double CarlsonRD(double x, double y, double z) {
  constexpr double ERRTOL = 0.05;
  constexpr double TINY = 1.5e-25;
  constexpr double BIG = 4.5e21;
  constexpr double C1 = 3.0 / 14.0;
  constexpr double C2 = 1.0 / 6.0;
  constexpr double C3 = 9.0 / 22.0;
  constexpr double C4 = 3.0 / 26.0;
  constexpr double C5 = 0.25 * C3;
  constexpr double C6 = 1.5 * C4;

  if (InvalidArguments(x, y, z, TINY, BIG)) return 0.0;
  double xt = x;
  double yt = y;
  double zt = z;
  double sum = 0.0;
  double fac = 1.0;
  for (int round = 0; round < kMaxDuplications; ++round) {
    const double sx = std::sqrt(xt);
    const double sy = std::sqrt(yt);
    const double sz = std::sqrt(zt);
    const double lambda = sx * (sy + sz) + sy * sz;
    sum += fac / (sz * (zt + lambda));
    fac *= 0.25;
    xt = 0.25 * (xt + lambda);
    yt = 0.25 * (yt + lambda);
    zt = 0.25 * (zt + lambda);
    const double ave = 0.2 * (xt + yt + 3.0 * zt);
    const double dx = (ave - xt) / ave;
    const double dy = (ave - yt) / ave;
    const double dz = (ave - zt) / ave;
    if (LargestDeviation(dx, dy, dz) < ERRTOL) {
      const double ea = dx * dy;
      const double eb = dz * dz;
      const double ec = ea - eb;
      const double ed = ea - 6.0 * eb;
      const double ee = ed + ec + ec;
      return 3.0 * sum + fac *
                             (1.0 + ed * (-C1 + C5 * ed - C6 * dz * ee) +
                              dz * (C2 * ee + dz * (-C3 * ec + dz * C4 * ea))) /
                             (ave * std::sqrt(ave));
    }
  }
  return Unsettled(CarlsonRD, x, y, z, 0x1p-96);
}

}  // namespace track
