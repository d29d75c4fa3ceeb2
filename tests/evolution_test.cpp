#include <gtest/gtest.h>

#include "harness.h"
#include "window/format.h"

namespace {

// A run, and what its steps should show.
struct Journey : Motion {
  Journey(int amplitude, int degrees, int speed, int acceleration, int steps)
      : Motion(amplitude, degrees, speed, acceleration) {
    window->Option2.UserClick();
    Scroll(steps);
    Start();
  }
  double time = 0;
  int n = 0, gap = 0;  // steps so far, and from mark to mark
  Marks last;          // arrows
  const window::PathRecords& path = window->module.path;

  void Scroll(int steps) {
    bars[4]->UserScroll(steps);
    gap = 3 * steps;
  }
  void Start() {
    window->Command1.UserClick();
    n = 0;
    time = 0;
  }
  bool Tick() {
    Forget();
    desktop.Tick();
    Check();
    return window->Timer1.Enabled && !::testing::Test::HasFailure();
  }
  void Step() {
    Forget();
    window->VIMA.UserClick();
    Check();
    ExpectStill();
  }
  void ExpectStill() {
    Forget();
    desktop.Tick();
    EXPECT_TRUE(!window->Timer1.Enabled && Operations().empty() && window->module.StepCount == n);
  }

  // What the step left in the records and on the sketch.
  void Check() {
    SCOPED_TRACE(::testing::Message() << "A " << A << " gap " << gap << " step " << n + 1);
    ASSERT_EQ(window->module.StepCount, ++n);
    time += 3.0 / gap;
    MoveTo(path.PathX[n], v0 + at * time);
    const double s = v0 * time + at * time * time / 2;
    EXPECT_NEAR(path.PathTime[n], time, 1e-9);
    EXPECT_NEAR(path.PathDs[n] + path.PathDs[n - 1], s, 1e-8 * (1 + std::abs(s)));
    EXPECT_NEAR(path.PathY[n], y, 1e-12);
    EXPECT_NEAR(Length(x, A * w), s, 4e-8 * std::abs(s) + 1e-4 * std::hypot(1, A * w) / w);

    for (Mark& arrow : last) {
      arrow.pen = {toolkit::kWhite, 3};
      Expect(arrow);
    }
    Arrow(v, 0, kRed);
    Arrow(at / 2, an / 2, {0, 25, 155});
    last.assign(expected.begin() + std::ssize(last), expected.end());
    Text(2, 8, "β = " + window::Format(w, 2));
    for (int i = 0; i <= n; i += gap) ExpectLabel(i);
    EXPECT_EQ(Wrong(1e-8, {Kind::Line, Kind::Text}), "");
    if (n < 70 || n % 97 < 2) CheckDots();
  }

  void ExpectLabel(int i) {
    if (std::abs(path.PathX[i]) >= 100) return;  // far from the sketch
    const double Ds60 = path.PathDs[60];
    if (i < 30 || (i != 60 && (i <= gap + 1 || std::abs(Ds60) < 1e-9))) return;
    const auto two = [](double value) { return window::Format(value, 2); };
    const double ratio = (path.PathDs[i] - path.PathDs[std::max(i - 1 - gap, 0)]) / Ds60;
    std::string text = "Ds =" + two(Ds60) + " t =";
    if (i != 60) text = "Ds = " + two(ratio) + " X" + two(Ds60) + " t = ";
    Text(path.PathX[i], path.PathY[i], text + two(path.PathTime[i]));
  }

  // The body and the arrows, then the whole path in its order, a red mark over the dot of every 3
  // time units. A dot may be left out only off the sketch or on the pixel of the one before.
  void CheckDots() {
    const Marks got = Read(Kind::Dot);
    auto next = got.begin();
    Mark before{};
    const auto expect = [&](int i, const toolkit::Pen& pen) {
      const Mark want{Kind::Dot, {path.PathX[i], path.PathY[i]}, 0, 0, pen};
      const bool drawn = next != got.end() && Mark::Miss(*next, want) < 1e-8;
      const bool needed =
          std::abs(path.PathX[i] - 10) < 10.1 && Mark::Miss(before, want) * Unit() > 1.42;
      EXPECT_TRUE(drawn || !needed) << i;
      next += drawn;
      before = want;
    };
    expect(n, {kInk});
    for (int i = 0; i <= n; ++i) {
      expect(i, {kInk});
      if (i % gap == 0) expect(i, {kRed, 3});
    }
    EXPECT_EQ(next, got.end());
    const auto lines = Count(Kind::Line);
    EXPECT_TRUE(lines == 0 || Operations()[1 + lines].kind == Kind::Line);
  }
};

// Fast, slow, steep and nearly straight tracks at every pace. A body that is slowed down comes to
// rest, goes back past the origin and on to the far left; one of them has nothing to refer to in
// step 60. The last body never moves, and its run ends with the records.
TEST(Evolution, EveryStepObeysTheLawsOfMotion) {
  const int runs[][5] = {{20, 15, 3, 20, 50},  {20, 15, 0, 4, 10},   {20, 15, 0, 4, 15},
                         {20, 15, 1, 10, 50},  {20, 15, 0, 15, 300}, {35, 30, 2, 0, 10},
                         {1, 1, 15, 35, 11},   {20, 15, 3, -19, 20}, {35, 60, 15, -35, 37},
                         {20, 15, 1, -20, 61}, {20, 15, 0, 0, 50}};
  for (const auto& [amplitude, degrees, speed, acceleration, steps] : runs) {
    Journey run(amplitude, degrees, speed, acceleration, steps);
    while (run.Tick() && (acceleration >= 0 || run.n < 500)) EXPECT_LE(run.x, 30);
    ASSERT_FALSE(HasFailure());
    EXPECT_EQ(run.window->Timer1.Enabled, acceleration < 0);
    EXPECT_TRUE(acceleration < 0 ? run.x < -30 : run.x > 30 || run.n == 12500) << run.x;
    if (run.n < 12500) continue;
    run.window->VIMA.UserClick();
    run.window->KSEKINA.UserClick();
    run.ExpectStill();
  }
}

// A new pace moves the marks; a new run erases the old arrows and has labels of its own; "STEP"
// stops the run, and without "start" it goes on in time.
TEST(Evolution, ChangesItsPaceAndStartsOver) {
  Journey run(20, 15, 2, 3, 20);
  while (run.n < 70) ASSERT_TRUE(run.Tick());
  run.Step();
  run.Scroll(10);
  run.Step();
  run.window->KSEKINA.UserClick();
  while (run.Tick()) EXPECT_LE(run.x, 30);
  run.ExpectStill();

  run.window->epitaxyno.UserScroll(4);
  run.at = 0.4;
  run.Start();
  while (run.n < 65) ASSERT_TRUE(run.Tick());
  run.window->Option2.UserClick();
  run.n = 0;
  run.Step();
}

// From rest the distances in equal times are as the odd numbers; a = 0.3, marks 3 time units apart.
TEST(Evolution, LabelsFromRestReadThreeFiveSeven) {
  Journey run(20, 15, 0, 3, 20);
  while (run.n < 240) ASSERT_TRUE(run.Tick());
  for (const char* ratio : {"Ds = 3.00 X", "Ds = 5.00 X", "Ds = 7.00 X"}) {
    EXPECT_NE(run.Said().find(ratio), std::string::npos) << run.Said();
  }
}

}  // namespace
