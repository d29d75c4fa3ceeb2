#include <gtest/gtest.h>

#include "harness.h"
#include "sketch/draw_vector.h"
#include "track/arc_length.h"

namespace {

using Marks = std::vector<Program::Mark>;
using toolkit::Colour;
const double kPi = std::acos(-1.0), kBarb = std::sqrt(800.0) / 75, kShortest = 0.217732;
constexpr Colour kRed{255, 0, 0}, kBlue{5, 150, 255}, kInk{1, 0, 66};

void Expect(const Marks& drawn, const Marks& want, double tolerance = 1e-9) {
  ASSERT_EQ(drawn.size(), want.size());
  for (std::size_t i = 0; i < want.size(); ++i) {
    const auto &d = drawn[i], &w = want[i];
    const double shaft = std::hypot(w.vx, w.vy);
    const double miss = std::hypot(d.x - w.x, d.y - w.y, d.radius - w.radius) +
                        (shaft == 0 ? 0 : std::hypot(d.vx - w.vx, d.vy - w.vy));
    EXPECT_LE(miss, tolerance * (1 + shaft)) << i << ": " << d.x << ' ' << d.vx;
    EXPECT_TRUE(d.colour == w.colour && d.width == w.width && d.dotted == w.dotted) << i;
    EXPECT_EQ(d.text, w.text);
  }
}

// In every direction, on a surface of either size, the shaft stands as it is given and both barbs
// lead back from its tip, 30 degrees to either side; also where 7 + vx is 7.
TEST(DrawVector, PointsAwayOrIsNotDrawn) {
  Program p;
  sketch::Sketch& s = p.window->eikona;
  s.DrawWidth = 3;
  for (const double length : {1e-300, 1e-3, 0.2, 0.2177, 0.2178, 0.24, 1.0, 30.0, 1e5}) {
    for (int degrees = -360; degrees <= 360; ++degrees) {
      const double angle = degrees * kPi / 180, size = 2 + degrees % 2;
      const double vx = length * std::cos(angle), vy = length * std::sin(angle);
      p.Forget();
      s.Scale(0, 10 * size, 20 * size, -10 * size);
      sketch::DrawVector(7 * size, 3 * size, vx * size, vy * size, s, 1, 2, 255);
      const Marks lines = p.Lines();
      Marks want{{7, 3, vx, vy, 0, {1, 2, 255}, 3}};
      const double first = lines.size() == 3 && lines[1].vx * vy > lines[1].vy * vx ? 1 : -1;
      for (const double side : {first, -first}) {
        const double bx = -kBarb * std::cos(angle + side * kPi / 6);
        const double by = -kBarb * std::sin(angle + side * kPi / 6);
        want.push_back({7 + vx, 3 + vy, bx, by, 0, {1, 2, 255}, 3});
      }
      Expect(lines, length < kShortest ? Marks{} : want, 1e-7);
    }
  }
}

TEST(Sketch, NothingInfiniteReachesTheCanvas) {
  const double odd[] = {0, -1, 1e9, 1e200, 1.7e308, -1.7e308, HUGE_VAL, -HUGE_VAL, std::nan("")};
  Program p;
  sketch::Sketch& s = p.window->eikona;
  for (int i = 0; i < 9 * 9 * 9 * 9; ++i) {
    const double a = odd[i % 9], b = odd[i / 9 % 9], c = odd[i / 81 % 9], d = odd[i / 729];
    sketch::DrawVector(a, b, c, d, s, 0, 0, 0);
    s.Circle(a, b, c, 0, d, kRed);
    s.PSet(s.CurrentX = a, s.CurrentY = b);
    s.Print("x");
  }
  for (const auto& o : p.Operations()) {
    ASSERT_TRUE(std::isfinite(o.from.x + o.from.y + o.to.x + o.to.y + o.radius));
  }
}

// What a scene shows, from the formulas; arrows too short to be drawn are left out.
struct Scene {
  double A, w, v0, at;
  int width;  // of lines and dots
  Marks dots{}, circles{}, arrows{}, texts{};
  const char* page = "before";

  // v^2 after the distance K*E(w*x, k).
  double Square(double x) const {
    const double K = std::sqrt(1 + A * A);
    return v0 * v0 + 2 * at * K / w * track::ArcLength(w * x, A / K);
  }
  void Dot(double x) { dots.push_back({x, A * std::sin(w * x), 0, 0, 0, kInk, width}); }
  void Arrow(double x, double y, double vx, double vy, Colour colour, int thick) {
    if (std::hypot(vx, vy) >= kShortest) arrows.push_back({x, y, vx, vy, 0, colour, thick});
  }
  // The arrows at x: the last one with `share` of the centripetal acceleration.
  void Arrows(double x, double share, Colour last, int thick) {
    const double y = A * std::sin(w * x), slope = A * w * std::cos(w * x), v = std::sqrt(Square(x));
    const double c = 1 / std::hypot(1, slope), s = slope * c;
    const double an = A / 4 * v * v * -w * w * y * c * c * c, t = A / 4 * at;
    Arrow(x, y, v * c, v * s, kRed, width);
    Arrow(x, y, -an * s, an * c, kBlue, thick);
    Arrow(x, y, t * c - share * an * s, t * s + share * an * c, last, width);
  }
  void Legend(double arrowX, double y, const char* text, Colour colour) {
    texts.push_back({10, y, 0, 0, 0, kInk, 1, false, text});
    Arrow(arrowX, y, 1, 0, colour, width);
  }
  void Draw(bool factors) {
    for (int i = 0; i <= 400; ++i) {
      const double x = i / 20.0;
      if (factors && Square(x) < 0) return;
      Dot(x);
      if (factors && i % 28 == 0) Arrows(x, 1, {0, 0, 0}, 2);
    }
    for (const int side : factors ? std::vector<int>{} : std::vector<int>{1, -1}) {
      const double x = (2 - side) * kPi / 2 / w, R = 1 / (A * w * w);
      if (Square(x) < 0) return;
      circles.push_back({x, side * (A - R), 0, 0, R, {250, 0, 150}, width, true});
      Dot(x);
      Arrows(x, 0, {5, 150, 250}, width);
    }
    page = factors ? "The centripetal acceleration has" : "The centripetal acceleration is";
    Legend(factors ? 9 : 10, -9.1, "VELOCITY", kRed);
    Legend(factors ? 9 : 10, -8.1, "CENTRIPETAL ACCELERATION", kBlue);
    if (factors) Legend(9, -7.1, "TOTAL ACCELERATION", {0, 0, 0});
  }
};

// No tangential acceleration, no speed, a body that stops at once, on the way, between crest and
// trough, the ends of amplitude and frequency. The curvature keeps the line width that it finds.
TEST(Scenes, ShowWhatTheFormulasSay) {
  Program p;
  app::firststep& w = *p.window;
  const int bars[][4] = {{20, 15, 3, 20},  {20, 15, 0, 0},    {20, 15, 9, -20},
                         {20, 15, 0, -35}, {1, 1, 15, 35},    {35, 60, 15, 35},
                         {35, 1, 7, -3},   {20, 10, 15, -35}, {1, 17, 6, 0}};
  for (const auto& [A, degrees, speed, acceleration] : bars) {
    for (const bool factors : {true, false}) {
      w.platosvalue.Value = A;
      w.syxnotikamp.Value = degrees;
      w.arxikives.Value = speed;
      w.epitaxyno.Value = acceleration;
      w.Text1.Text = "before";
      w.eikona.DrawWidth = factors ? 1 : 3;
      p.Forget();
      factors ? w.Option3.UserClick() : w.DYNAMEISDIAFORES.UserClick();
      Scene want{A / 10.0, degrees * kPi / 180, 1.0 * speed, acceleration / 10.0, factors ? 1 : 3};
      want.Draw(factors);
      SCOPED_TRACE(::testing::Message() << A << ' ' << degrees << ' ' << speed << ' ' << factors);
      Expect(p.Dots(), want.dots);
      Expect(p.Circles(), want.circles, 1e-7);
      Expect(p.Arrows(), want.arrows, 2e-5);
      Expect(p.Texts(), want.texts);
      EXPECT_TRUE(w.Text1.Text.Get().starts_with(want.page));
    }
  }
}

}  // namespace
