#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <numbers>
#include <string>
#include <vector>

#include "harness.h"

namespace {

using Mark = Program::Mark;
constexpr toolkit::Colour kForeground{1, 0, 66}, kRed{255, 0, 0}, kBlue{0, 25, 155};

std::string TwoPlaces(double value) {
  char text[40];
  std::snprintf(text, sizeof text, "%.2f", value + std::copysign(1e-9, value));
  return text;
}

void ExpectMarks(const std::vector<Mark>& got, const std::vector<Mark>& want) {
  ASSERT_EQ(got.size(), want.size());
  for (std::size_t i = 0; i < got.size(); ++i) {
    EXPECT_NEAR(std::hypot(got[i].x - want[i].x, got[i].y - want[i].y), 0, 1e-8) << i;
    EXPECT_TRUE(got[i].colour == want[i].colour && got[i].width == want[i].width) << i;
    EXPECT_EQ(got[i].text, want[i].text) << i;
    if (!got[i].text.empty()) continue;
    EXPECT_NEAR(std::hypot(got[i].vx - want[i].vx, got[i].vy - want[i].vy), 0, 1e-8) << i;
  }
}

// A run, and what its steps should show, from the curve and the laws of motion alone.
struct Motion : Program {
  Motion(int amplitude, int degrees, int speed, int acceleration, int steps)
      : A(amplitude / 10.0), w(degrees * std::numbers::pi / 180), v0(speed) {
    window->platosvalue.UserScroll(amplitude);
    window->syxnotikamp.UserScroll(degrees);
    window->arxikives.UserScroll(speed);
    window->epitaxyno.UserScroll(acceleration);
    at = acceleration / 10.0;
    window->Option2.UserClick();
    Scroll(steps);
  }
  double A, w, v0, at = 0, time = 0, length = 0;
  std::size_t n = 0, gap = 0;  // steps so far, and from mark to mark
  std::vector<Mark> last;      // arrows
  std::vector<double> ds{0};
  const window::PathRecords& path = window->module.path;

  void Scroll(int steps) {
    window->vimatimi.UserScroll(steps);
    gap = 3 * static_cast<std::size_t>(steps);
  }
  void Start() {
    window->Command1.UserClick();
    time = length = 0;
    ds.resize(1);
    n = 0;
  }
  bool Tick() {
    Forget();
    desktop.Tick();
    Check();
    return window->Timer1.Enabled && !::testing::Test::HasFailure();
  }
  double Slope(double x) const { return A * w * std::cos(w * x); }
  double Length(double from, double to) const {  // Simpson's rule
    double sum = std::hypot(1, Slope(from)) + std::hypot(1, Slope(to));
    for (int i = 1; i < 64; ++i) {
      sum += (2 + i % 2 * 2) * std::hypot(1, Slope(from + (to - from) * i / 64));
    }
    return sum * (to - from) / 192;
  }

  // What the step left in the records and on the sketch.
  void Check() {
    SCOPED_TRACE(::testing::Message() << "A " << A << " gap " << gap << " step " << n + 1);
    time += 3.0 / static_cast<double>(gap);
    const double x = path.PathX[++n], y = path.PathY[n];
    length += Length(n == 1 ? 0 : path.PathX[n - 1], x);
    const double s = v0 * time + at * time * time / 2, v = v0 + at * time;
    ds.push_back(s - ds.back());
    ASSERT_EQ(window->module.StepCount, static_cast<int>(n));
    EXPECT_NEAR(path.PathTime[n], time, 1e-9);
    EXPECT_NEAR(path.PathDs[n], ds[n], 1e-8 * (1 + std::abs(ds[n])));
    // The middle of a quarter period stands for everything very near to it.
    const double unit = std::hypot(1, A * w) / w, quarter = std::numbers::pi / 2;
    const bool middle = std::abs(std::remainder(w * x - quarter / 2, quarter)) < 1e-12;
    EXPECT_NEAR(length, s, unit * (middle ? 1e-4 : 1e-10) + 4e-8 * (std::abs(s) + unit));
    EXPECT_NEAR(y, A * std::sin(w * x), 1e-12);

    const double rise = std::hypot(1, Slope(x)), cosine = 1 / rise, sine = Slope(x) / rise;
    const double an = v * v * -A * w * w * std::sin(w * x) / std::pow(rise, 3);
    std::vector<Mark> fresh{
        {x, y, v * cosine, v * sine, 0, kRed},
        {x, y, at / 2 * cosine - an / 2 * sine, at / 2 * sine + an / 2 * cosine, 0, kBlue}};
    std::erase_if(fresh, [](const Mark& m) { return std::hypot(m.vx, m.vy) < 0.21773; });
    std::vector<Mark> arrows = last;
    for (Mark& m : arrows) m.colour = {255, 255, 255}, m.width = 3;
    arrows.insert(arrows.end(), fresh.begin(), fresh.end());
    ExpectMarks(Arrows(), arrows);
    last = fresh;
    std::vector<Mark> texts{{2, 8, 0, 0, 0, kForeground, 1, false, "β = " + TwoPlaces(w)}};
    for (std::size_t i = 0; i <= n; i += gap) {
      if (i < 30 || (i != 60 && (i <= gap + 1 || std::abs(ds[60]) < 1e-9))) continue;
      std::string text = "Ds =" + TwoPlaces(ds[60]) + " t =";
      if (i != 60) {
        text = "Ds = " + TwoPlaces((ds[i] - ds[i - 1 - gap]) / ds[60]) + " X" + TwoPlaces(ds[60]) +
               " t = ";
      }
      text += TwoPlaces(path.PathTime[i]);
      texts.push_back({path.PathX[i], path.PathY[i], 0, 0, 0, kForeground, 1, false, text});
    }
    ExpectMarks(Texts(), texts);
    if (n < 70 || n % 97 < 2) CheckDots();
  }

  // The body, then the whole path in its order, a red mark over the dot of every 3 time units. A
  // dot may be left out only off the sketch or on the pixel of the one before.
  void CheckDots() {
    std::vector<Mark> want{{path.PathX[n], path.PathY[n], 0, 0, 0, kForeground}};
    for (std::size_t i = 0; i <= n; ++i) {
      want.push_back({path.PathX[i], path.PathY[i], 0, 0, 0, kForeground});
      if (i % gap == 0) want.push_back({path.PathX[i], path.PathY[i], 0, 0, 0, kRed, 3});
    }
    const auto near = [&](const Mark& a, const Mark& b, double pixels) {
      return std::max(std::abs(a.x - b.x), std::abs(a.y - b.y)) * Unit() < pixels &&
             a.colour == b.colour && a.width == b.width;
    };
    const auto got = Dots();
    std::size_t found = 0;
    for (std::size_t i = 0; i < want.size(); ++i) {
      if (found < got.size() && near(got[found], want[i], 1e-6)) {
        ++found;
      } else if (std::abs(want[i].x - 10) < 10.1) {
        ASSERT_TRUE(i > 0 && near(want[i - 1], want[i], 1.0)) << "dot " << i << " is missing";
      }
    }
    EXPECT_EQ(found, got.size());
    // The path comes last, over what erasing the arrows has cut out of it.
    const auto isLine = [](const Operation& o) { return o.kind == Program::Kind::Line; };
    const auto& all = Operations();
    const auto path0 = std::find_if(all.begin() + 2, all.end(), [](const Operation& o) {
      return o.kind == Program::Kind::Dot;
    });
    EXPECT_TRUE(std::none_of(path0, all.end(), isLine));
  }
};

// Fast, slow, steep and nearly straight tracks at every pace. The body that is slowed down comes to
// rest, goes back past the origin and on to the far left. The last run's reference of step 60 is 0.
TEST(Evolution, EveryStepObeysTheLawsOfMotion) {
  for (const auto& [amplitude, degrees, speed, acceleration, steps] :
       {std::array{20, 15, 3, 20, 50},
        {20, 15, 0, 4, 10},
        {20, 15, 0, 4, 15},
        {20, 15, 0, 3, 20},
        {20, 15, 1, 10, 50},
        {20, 15, 0, 15, 300},
        {35, 30, 2, 0, 10},
        {1, 1, 15, 35, 11},
        {20, 15, 3, -19, 20},
        {35, 60, 15, -35, 37},
        {20, 15, 1, -20, 61}}) {
    Motion run(amplitude, degrees, speed, acceleration, steps);
    run.Start();
    while (run.Tick() && (acceleration > 0 || run.n < 500)) EXPECT_LE(run.path.PathX[run.n], 30);
    ASSERT_FALSE(HasFailure());
    const double x = run.path.PathX[run.n];
    EXPECT_TRUE(acceleration < 0 ? x < -30 : x > 30) << x;
    EXPECT_EQ(run.window->Timer1.Enabled, acceleration < 0);
    if (acceleration != 3) continue;
    std::string labels;  // from rest, intervals are as the odd numbers
    for (const Mark& text : run.Texts()) labels += text.text + '|';
    EXPECT_EQ(labels,
              "β = 0.26|Ds =0.69 t =3.00|Ds = 3.00 X0.69 t = 6.00|Ds = 5.00 X0.69 t = 9.00|"
              "Ds = 7.00 X0.69 t = 12.00|");
  }
}

// "STOP", "STEP" and "CONTINUE" in the run and after its end; a new pace moves the marks; a new run
// erases the old arrows, leaves the old path alone and has labels of its own; "STEP" without
// "start" goes on in time.
TEST(Evolution, StopsContinuesAndStartsOver) {
  Motion run(20, 15, 2, 3, 20);
  auto& w = *run.window;
  const auto still = [&](std::size_t steps) {
    run.Forget();
    run.desktop.Tick();
    EXPECT_TRUE(!w.Timer1.Enabled && run.Operations().empty());
    EXPECT_EQ(w.module.StepCount, static_cast<int>(steps));
  };
  const auto step = [&] {
    run.Forget();
    w.VIMA.UserClick();
    run.Check();
    still(run.n);
  };
  still(0);
  run.Start();
  while (run.n < 70) ASSERT_TRUE(run.Tick());
  w.STAMATHMA.UserClick();
  still(70);
  w.KSEKINA.UserClick();
  EXPECT_TRUE(run.Tick());
  step();
  run.Scroll(10);
  step();
  w.KSEKINA.UserClick();
  while (run.Tick()) EXPECT_LE(run.path.PathX[run.n], 30);
  EXPECT_GT(run.path.PathX[run.n], 30);
  still(run.n);
  w.KSEKINA.UserClick();
  EXPECT_FALSE(run.Tick());
  still(run.n);

  const double old = run.path.PathX[90];
  w.epitaxyno.UserScroll(4);
  run.at = 0.4;
  run.Start();
  while (run.n < 65) ASSERT_TRUE(run.Tick());
  EXPECT_EQ(run.path.PathX[90], old);
  w.Option2.UserClick();
  still(0);
  run.n = 0;
  run.ds.resize(1);
  run.length = 0;
  step();
  EXPECT_NEAR(run.path.PathDs[1], 2 * 6.6 + 0.4 * 6.6 * 6.6 / 2, 1e-9);
}

TEST(Evolution, RunAtRestEndsWithTheRecords) {
  Motion run(20, 15, 0, 0, 50);
  auto& w = *run.window;
  run.Start();
  for (std::size_t step = 1; step <= 12500; ++step) {
    ASSERT_TRUE(w.Timer1.Enabled);
    run.Forget();
    run.desktop.Tick();
    ASSERT_EQ(run.Count(Program::Kind::Text), 1) << step;  // no distance that is no number
    ASSERT_EQ(run.Count(Program::Kind::Line), 0);
    ASSERT_EQ(run.path.PathX[step], 0);
  }
  for (toolkit::MenuItem* again : {&w.STAMATHMA, &w.KSEKINA, &w.KSEKINA}) {
    EXPECT_FALSE(w.Timer1.Enabled);
    run.Forget();
    again->UserClick();
    run.desktop.Tick();
    w.VIMA.UserClick();
    EXPECT_TRUE(run.Operations().empty());
    EXPECT_EQ(w.module.StepCount, 12500);
    EXPECT_NEAR(w.module.ElapsedTime, 250, 1e-9);
  }
  run.Start();
  EXPECT_TRUE(run.Tick());
}

}  // namespace
