#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <climits>
#include <cmath>
#include <limits>
#include <numbers>
#include <random>
#include <string>

#include "harness.h"
#include "toolkit/arc.h"
#include "toolkit/clip.h"
#include "track/carlson.h"

namespace {

using toolkit::Point;
using Wide = long double;

TEST(Options, OneOfTheGroupIsSelected) {
  Program p;
  app::firststep& w = *p.window;
  std::string log;
  w.Option1.Click = [&] { log += w.Option3.Value ? "?" : "1"; };  // the others are off by then
  w.Option2.Click = [&] { log += '2'; };
  w.Option3.Click = [&] { log += '3'; };
  w.Option3.Value = true;  // selected since start
  for (const bool selected : {true, true, false}) w.Option1.Value = selected;
  w.Option2.UserClick();
  EXPECT_TRUE(!w.Option1.Value && w.Option2.Value && !w.Option3.Value && log == "12") << log;
  w.Option3.Value = true;
  EXPECT_TRUE(!w.Option1.Value && !w.Option2.Value && w.Option3.Value && log == "123") << log;
}

// What comes in while a handler shows a message waits for its end; after "end" nothing runs.
TEST(Events, WaitWhileAMessageIsOpen) {
  for (const bool end : {false, true}) {
    Program p;
    app::firststep& w = *p.window;
    std::string log;
    w.VIMA.Click = [&] { log += track::CarlsonRF(-1, 1, 1) == 0 ? "()" : "?"; };
    w.campyles.Click = [&] { log += 'm'; };
    w.epitaxyno.Change = [&] { log += 's'; };
    w.Timer1.Tick = [&] { log += 't'; };
    w.Option1.Click = [&] { log += 'o'; };
    w.Timer1.Enabled = true;
    p.desktop.whileMessageIsOpen = [&] {
      w.campyles.UserClick();
      w.epitaxyno.UserScroll(-3);
      for (int i = 0; i < 2; ++i) p.desktop.Tick();  // the second finds the first still waiting
      if (end) w.TERMATISMOS.UserClick();
      w.Option1.UserClick();
      EXPECT_TRUE(w.epitaxyno.Value == 20 && log.empty() && !p.desktop.ended);
    };
    w.VIMA.UserClick();
    p.desktop.Tick();
    EXPECT_EQ(log, end ? "()mst" : "()mstot");
    EXPECT_EQ(p.desktop.ended, end);
    EXPECT_EQ(p.desktop.messages, std::vector<std::string>{"invalid arguments in rf"});
  }
}

TEST(Timer, TicksOnAnEvenGrid) {
  using namespace std::chrono_literals;
  EXPECT_EQ(toolkit::TickPeriod(1000), 1s);
  for (const int quick : {-5, 0, 1, 16}) EXPECT_EQ(toolkit::TickPeriod(quick) / 1us, 16666);
  const toolkit::Clock::time_point start{5s};
  for (const auto& [now, next] : {std::pair{4s, 5s}, {5s, 8s}, {7s, 8s}, {8s, 11s}, {104s, 107s}}) {
    EXPECT_EQ(toolkit::NextTick(start, toolkit::Clock::time_point{now}, 3s) - start, next - 5s);
  }
}

TEST(ScrollBar, StaysInItsRangeAndTellsChanges) {
  Program p;
  toolkit::ScrollBar& bar = p.window->epitaxyno;
  std::string seen;
  bar.Change = [&] { seen += std::to_string(bar.Value) + ' '; };
  for (const int n : {20, 21, 21, 36, 35, 100000, -36, -35, INT_MIN, 0}) bar.UserScroll(n);
  bar.Value = 65537;
  EXPECT_EQ(seen, "21 35 -35 0 35 ");
}

// Cuts on one axis, with the crossed side's coordinate set, not computed.
bool Cut(std::array<Wide, 2>& from, std::array<Wide, 2>& to, std::size_t axis, Wide limit,
         Wide sign) {
  const Wide a = sign * (from[axis] - limit), b = sign * (to[axis] - limit);
  if (a > 0 && b > 0) return false;
  if (a <= 0 && b <= 0) return true;
  const auto near = std::abs(a) < std::abs(b) ? from : to;
  const auto far = std::abs(a) < std::abs(b) ? to : from;
  auto& outer = a > 0 ? from : to;
  const Wide share = (limit - near[axis]) / (far[axis] - near[axis]);
  outer[1 - axis] = near[1 - axis] + share * (far[1 - axis] - near[1 - axis]);
  outer[axis] = limit;
  return true;
}

TEST(Clip, AgreesWithLongDoubleUpToTheLargestDouble) {
  const toolkit::Box box{-1, 0, 500, 300};
  std::mt19937_64 random(3);
  std::uniform_real_distribution<double> unit(-1, 1);
  int hits = 0;
  for (int i = 0; i < 100000; ++i) {
    const auto place = [&] {
      const double size = std::pow(10.0, i % 3 == 0 ? 155 + 153 * unit(random) : 3 + unit(random));
      return Point{unit(random) * size, i % 2 == 0 ? 700 * unit(random) : unit(random) * size};
    };
    const Point a = place(), b = place();
    SCOPED_TRACE(::testing::Message() << a.x << ',' << a.y << ' ' << b.x << ',' << b.y);
    std::array<Wide, 2> from{a.x, a.y}, to{b.x, b.y};
    const bool hit = Cut(from, to, 0, box.left, -1) && Cut(from, to, 0, box.right, 1) &&
                     Cut(from, to, 1, box.top, -1) && Cut(from, to, 1, box.bottom, 1);
    const auto clipped = toolkit::Clip({a, b}, box);
    ASSERT_EQ(clipped.has_value(), hit);
    const double nearer = std::min(std::hypot(a.x, a.y), std::hypot(b.x, b.y));
    if (!hit) continue;
    ++hits;
    for (const auto& [got, want] : {std::pair{clipped->from, from}, {clipped->to, to}}) {
      ASSERT_LE(std::hypot(got.x - want[0], got.y - want[1]), 1e-9 + 1e-15 * nearer);
      ASSERT_TRUE(got.x >= -1 && got.x <= 500 && got.y >= 0 && got.y <= 300);
    }
  }
  EXPECT_GT(hits, 10000);
}

// A point of the circle near the disc is on the arc exactly when it is in the disc.
TEST(Arc, IsThePartInTheDiscAtAnyRadius) {
  std::mt19937_64 random(4);
  std::uniform_real_distribution<double> unit(-1, 1);
  const Point middle{300, 250};
  const double reach = 400;
  for (int size = -10; size <= 172; ++size) {
    const double radius = std::pow(10.0, size / 10.0);
    const double turn = 4 * unit(random), off = unit(random) > 0 ? 600 : 30;
    const toolkit::CircleShape circle{{300 + off * unit(random), 250 + off * unit(random)},
                                      {std::cos(turn), std::sin(turn)},
                                      radius};
    const auto arc = toolkit::ArcInDisc(circle, middle, reach);
    for (int share = -800; share <= 800; ++share) {
      const Wide angle = share / (radius < 3000 ? 256.0L : radius / 2);
      const Wide along = radius * std::sin(angle);
      const Wide height = 2 * radius * std::sin(angle / 2) * std::sin(angle / 2);
      const Wide nx = circle.towardCentre.x, ny = circle.towardCentre.y;
      const Wide x = circle.touch.x + along * ny + height * nx;
      const Wide y = circle.touch.y - along * nx + height * ny;
      const auto drawn = toolkit::PointOfArc(circle, static_cast<double>(angle));
      ASSERT_LT(std::hypot(drawn.x - x, drawn.y - y), 1e-9L) << radius;
      const Wide depth = reach - std::hypot(x - middle.x, y - middle.y);
      const Wide round = std::numbers::pi_v<Wide> * 2;
      bool within = false;
      for (const Wide a : {angle - round, angle, angle + round}) {
        within = within || (a >= arc.begin && a <= arc.end);
      }
      ASSERT_TRUE(within == (depth > 0) || std::abs(depth) < 1e-6L) << radius << ' ' << angle;
    }
    const auto points = toolkit::PointsAlong(circle, arc, 4);
    for (std::size_t i = 1; i < points.size(); ++i) {
      const Point p = points[i], before = points[i - 1];
      ASSERT_LE(std::hypot(p.x - before.x, p.y - before.y), 4 + 1e-9);
      ASSERT_LE(std::hypot(p.x - middle.x, p.y - middle.y), reach + 1e-6);
    }
  }
}

TEST(Sketch, MapsPlacesToPixelsAndBack) {
  Program p;
  sketch::Sketch& s = p.window->eikona;
  const double last = 573;  // three quarters of 768 pixels, less the frame and one
  const double shares[][2] = {{0, 0}, {1, 1}, {2.7, -1.5}};
  const double scales[][4] = {{0, 10, 20, -10}, {-3, -7, 5, 1}, {9, 1, 1, 9}};
  for (const auto& [x1, y1, x2, y2] : scales) {
    s.Scale(x1, y1, x2, y2);
    for (const auto& share : shares) {
      const Point place{x1 + share[0] * (x2 - x1), y1 + share[1] * (y2 - y1)};
      const Point pixel = s.ToPixels()(place.x, place.y);
      p.Forget();
      s.PSet(place.x, place.y);
      s.PSetPixels({&pixel, 1});
      for (const auto& dot : p.Operations()) {
        EXPECT_LT(std::hypot(dot.from.x - share[0] * last, dot.from.y - share[1] * last), 1e-9);
        EXPECT_EQ(dot.pen.colour, (toolkit::Colour{1, 0, 66}));
      }
      int heard = 0;
      s.MouseUp = [&](short button, short shift, float x, float y) {
        heard += button == 2 && shift == 5 &&
                 std::hypot(double{x} - place.x, double{y} - place.y) < 1e-5;
      };
      s.UserMouseUp({2, 5, pixel});
      EXPECT_EQ(std::pair(p.Operations().size(), heard), std::pair(std::size_t{2}, 1));
      const double inf = std::numeric_limits<double>::infinity();
      s.MouseDown = [](short, short, float x, float y) { ADD_FAILURE() << x << ' ' << y; };
      for (const double odd : {inf, -inf, std::nan(""), 1e300}) s.UserMouseDown({1, 0, {1, odd}});
    }
  }
}

}  // namespace
