#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "harness.h"
#include "sketch/draw_vector.h"

namespace {

using Mark = Program::Mark;
using Marks = std::vector<Mark>;
using toolkit::Colour;
const double kPi = std::acos(-1.0), kBarb = std::sqrt(800.0) / 75;
const double kShortest = kBarb / std::sqrt(3.0);
constexpr Colour kRed{255, 0, 0}, kBlue{5, 150, 255}, kInk{1, 0, 66};

void Expect(const Marks& drawn, const Marks& want, double tolerance = 1e-9) {
  ASSERT_EQ(drawn.size(), want.size());
  for (std::size_t i = 0; i < want.size(); ++i) {
    const Mark& d = drawn[i];
    const Mark& w = want[i];
    const double miss = std::hypot(d.x - w.x, d.y - w.y) + std::abs(d.radius - w.radius) +
                        (w.vx == 0 && w.vy == 0 ? 0 : std::hypot(d.vx - w.vx, d.vy - w.vy));
    EXPECT_LE(miss, tolerance * (1 + std::hypot(w.vx, w.vy))) << i << ": " << d.x << ' ' << d.vx;
    EXPECT_TRUE(d.colour == w.colour && d.width == w.width && d.dotted == w.dotted) << i;
    EXPECT_EQ(d.text, w.text);
  }
}

// Worked out by hand: start, vector and both barbs from the tip, in units of their parts along and
// across (c, d) the shaft; doubled on a surface twice as large.
TEST(DrawVector, PutsItsHeadAsWorkedOut) {
  const double c = kBarb * std::cos(kPi / 6), d = kBarb / 2;
  const double cases[][8] = {{9, -9.1, 1, 0, -c, -d, -c, d},
                             {5, 0, 0, 2, d, -c, -d, -c},
                             {5, 0, 0, -2, -d, c, d, c},
                             {5, 0, -1, 0, c, -d, c, d},
                             {5, 0, 0.25, 0, -c, -d, -c, d}};
  Program p;
  for (const auto& [x, y, vx, vy, b1x, b1y, b2x, b2y] : cases) {
    for (const double size : {1.0, 2.0}) {
      p.Forget();
      p.window->eikona.Scale(0, 10 * size, 20 * size, -10 * size);
      p.window->eikona.DrawWidth = 3;
      const double f = vx == 0.25 ? 1 : size;
      sketch::DrawVector(x * size, y * size, vx * f, vy * f, p.window->eikona, 1, 2, 255);
      const Mark shaft{.x = x, .y = y, .vx = vx, .vy = vy, .colour = {1, 2, 255}, .width = 3};
      Mark b1 = shaft, b2 = shaft;
      b1.x = b2.x = x + vx;
      b1.y = b2.y = y + vy;
      b1.vx = b1x, b1.vy = b1y, b2.vx = b2x, b2.vy = b2y;
      Expect(p.Lines(), vx * f / size == 0.125 ? Marks{} : Marks{shaft, b1, b2});
    }
  }
}

// In every direction the head points away from the start, also where 7 + vx is 7.
TEST(DrawVector, PointsAwayOrIsNotDrawn) {
  Program p;
  for (const double length : {1e-300, 1e-3, 0.2, 0.2177, 0.2178, 0.24, 1.0, 30.0, 1e5}) {
    for (int degrees = -360; degrees <= 360; ++degrees) {
      const double vx = length * std::cos(degrees * kPi / 180);
      const double vy = length * std::sin(degrees * kPi / 180);
      p.Forget();
      sketch::DrawVector(7, 3, vx, vy, p.window->eikona, 0, 0, 0);
      const auto lines = p.Lines();
      ASSERT_EQ(lines.size(), length < kShortest ? 0U : 3U) << length << " at " << degrees;
      double sideways = 0;
      for (std::size_t i = 1; i < lines.size(); ++i) {
        const Mark& barb = lines[i];
        sideways += (barb.vx * vy - barb.vy * vx) / length;
        ASSERT_NEAR(std::hypot(barb.vx, barb.vy), kBarb, 1e-7);
        ASSERT_NEAR(-(barb.vx * vx + barb.vy * vy) / length, kBarb * std::cos(kPi / 6), 1e-7);
      }
      ASSERT_NEAR(sideways, 0, 1e-7);
    }
  }
}

TEST(Sketch, NothingInfiniteReachesTheCanvas) {
  const double inf = std::numeric_limits<double>::infinity();
  const double odd[] = {0, -1, 1e9, 1e200, 1.7e308, -1.7e308, inf, -inf, std::nan("")};
  Program p;
  p.Forget();
  sketch::Sketch& s = p.window->eikona;
  for (int i = 0; i < 9 * 9 * 9 * 9; ++i) {
    const double a = odd[i % 9], b = odd[i / 9 % 9], c = odd[i / 81 % 9], d = odd[i / 729];
    sketch::DrawVector(a, b, c, d, s, 0, 0, 0);
    s.CircleThrough(a, b, c, 0, d, kRed);
    s.Circle(a, b, c, kRed);
    s.PSet(s.CurrentX = a, s.CurrentY = b);
    s.Print("x");
  }
  for (const auto& o : p.Operations()) {
    for (const double v : {o.from.x, o.from.y, o.to.x, o.to.y, o.radius}) {
      ASSERT_TRUE(std::isfinite(v)) << static_cast<int>(o.kind);
    }
  }
  EXPECT_GT(p.Lines().size(), 0U);
}

struct Bars {
  int amplitude, frequency, acceleration, speed;
};

// What a scene shows, from the formulas and the standard library's integral; arrows too short to
// be drawn are left out.
struct Scene {
  explicit Scene(const Bars& b)
      : A(b.amplitude / 10.0), w(b.frequency * kPi / 180), at(b.acceleration / 10.0), v0(b.speed) {}
  double A, w, at, v0;
  Marks dots{}, circles{}, arrows{}, texts{};
  bool whole = true;

  // v^2 after the distance K*E(w*x, k), whole half periods of E taken apart.
  double Square(double x) const {
    const double K = std::sqrt(1 + A * A), half = std::round(w * x / kPi);
    const double rest = std::ellint_2(A / K, w * x - half * kPi);
    return v0 * v0 + 2 * at * K / w * (2 * half * std::comp_ellint_2(A / K) + rest);
  }
  void Dot(double x) { dots.push_back({.x = x, .y = A * std::sin(w * x), .colour = kInk}); }
  void Arrow(double x, double y, double vx, double vy, Colour colour, int width = 1) {
    const Mark m{.x = x, .y = y, .vx = vx, .vy = vy, .colour = colour, .width = width};
    if (std::hypot(vx, vy) >= kShortest) arrows.push_back(m);
  }
  // The arrows at x: the last one with `share` of the centripetal acceleration.
  void Arrows(double x, double share, Colour last, int width) {
    const double y = A * std::sin(w * x), slope = A * w * std::cos(w * x), v = std::sqrt(Square(x));
    const double c = 1 / std::sqrt(1 + slope * slope), s = slope * c;
    const double an = A / 4 * v * v * -w * w * y * c * c * c, t = A / 4 * at;
    Arrow(x, y, v * c, v * s, kRed);
    Arrow(x, y, -an * s, an * c, kBlue, width);
    Arrow(x, y, t * c - share * an * s, t * s + share * an * c, last);
  }
  void Legend(double arrowX, double y, const char* text, Colour colour) {
    if (!whole) return;
    texts.push_back({.x = 10, .y = y, .colour = kInk, .text = text});
    Arrow(arrowX, y, 1, 0, colour);
  }
  void Factors() {
    for (int i = 0; i <= 400 && whole; ++i) {
      whole = Square(i / 20.0) >= 0;
      if (whole) Dot(i / 20.0);
      if (whole && i % 28 == 0) Arrows(i / 20.0, 1, {0, 0, 0}, 2);
    }
    Legend(9, -9.1, "VELOCITY", kRed);
    Legend(9, -8.1, "CENTRIPETAL ACCELERATION", kBlue);
    Legend(9, -7.1, "TOTAL ACCELERATION", {0, 0, 0});
  }
  void Curvature() {
    for (int i = 0; i <= 400; ++i) Dot(i / 20.0);
    for (const double side : {1.0, -1.0}) {
      const double x = (2 - side) * kPi / 2 / w, radius = 1 / (A * w * w);
      whole = whole && Square(x) >= 0;
      if (!whole) break;
      circles.push_back({.x = x,
                         .y = side * (A - radius),
                         .radius = radius,
                         .colour = {250, 0, 150},
                         .dotted = true});
      Dot(x);
      Arrows(x, 0, {5, 150, 250}, 1);
    }
    Legend(10, -9.1, "VELOCITY", kRed);
    Legend(10, -8.1, "CENTRIPETAL ACCELERATION", kBlue);
  }
};

// No tangential acceleration, no speed, a body that stops at once, on the way, between crest and
// trough, the ends of amplitude and frequency.
TEST(Scenes, ShowWhatTheFormulasSay) {
  Program p;
  const Bars bars[] = {{20, 15, 20, 3},  {20, 15, 0, 3},    {20, 15, 0, 0},  {20, 15, 20, 0},
                       {20, 15, -20, 9}, {20, 15, -35, 0},  {1, 1, 35, 15},  {35, 60, 35, 15},
                       {35, 1, -3, 7},   {20, 10, -35, 15}, {1, 60, 35, 15}, {1, 17, 0, 6}};
  for (const Bars& b : bars) {
    for (const bool factors : {true, false}) {
      app::firststep& w = *p.window;
      w.platosvalue.Value = b.amplitude;
      w.syxnotikamp.Value = b.frequency;
      w.epitaxyno.Value = b.acceleration;
      w.arxikives.Value = b.speed;
      w.Text1.Text = "before";
      w.eikona.Scale(-1, 1, 1, -1);
      p.Forget();
      factors ? w.Option3.UserClick() : w.DYNAMEISDIAFORES.UserClick();
      Scene want(b);
      factors ? want.Factors() : want.Curvature();
      SCOPED_TRACE(::testing::PrintToString(std::pair{&b - bars, factors}));
      Expect(p.Dots(), want.dots);
      Expect(p.Circles(), want.circles, 1e-7);
      Expect(p.Arrows(), want.arrows, 2e-5);
      Expect(p.Texts(), want.texts);
      const std::string text = factors ? "The centripetal acceleration has a direction toward"
                                       : "The centripetal acceleration is directed towards th";
      EXPECT_EQ(w.Text1.Text.Get().substr(0, text.size()), want.whole ? text : "before");
    }
  }
}

// The opening picture in its order, with the circles at (6, 2 - 72/pi^2) and (18, 72/pi^2 - 2).
TEST(Scenes, OpeningPicture) {
  Program p;
  std::string kinds;
  for (const auto& o : p.Operations()) kinds += "cLo.T"[static_cast<int>(o.kind)];
  const std::string point = "o.LLLLLLLLL";
  EXPECT_EQ(kinds.substr(kinds.rfind('c')),
            "c" + std::string(401, '.') + point + point + "TLLLTLLL");
  const double R = 72 / kPi / kPi;
  const Colour pink{250, 0, 150};
  Expect(p.Circles(), {{.x = 6, .y = 2 - R, .radius = R, .colour = pink, .dotted = true},
                       {.x = 18, .y = R - 2, .radius = R, .colour = pink, .dotted = true}});
  p.Forget();
  p.window->eikona.DrawWidth = 3;  // the scene keeps the width it finds
  p.window->DYNAMEISDIAFORES.UserClick();
  for (const auto& m : p.Lines()) EXPECT_EQ(m.width, 3);
  for (const auto& m : p.Dots()) EXPECT_EQ(m.width, 3);
}

}  // namespace
