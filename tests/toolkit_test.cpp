#include <gtest/gtest.h>

#include <random>
#include <sstream>

#include "harness.h"
#include "toolkit/arc.h"
#include "toolkit/clip.h"
#include "track/carlson.h"

namespace {

using toolkit::Point;

TEST(Controls, TellEachChangeOnceAndOnlyChanges) {
  Program p;
  app::firststep& w = *p.window;
  std::string log;
  w.Option1.Click = [&] { log += w.Option3.Value ? "?" : "1"; };  // the others are off by then
  w.Option2.Click = [&] { log += '2'; };
  for (const bool selected : {true, true, false}) w.Option1.Value = selected;
  for (int i = 0; i < 2; ++i) w.Option2.UserClick();  // the second runs the handler again
  w.epitaxyno.Change = [&] { log += ' ' + std::to_string(w.epitaxyno.Value); };
  for (const int n : {20, 21, 21, 36, 35, 100000, -36, -65537, 0, 65537}) w.epitaxyno.UserScroll(n);
  EXPECT_EQ(log, "122 21 35 -35 0 35");
}

// What comes in while a handler shows a message waits for its end; after "STOP" no tick is heard,
// after "end" nothing.
TEST(Events, WaitWhileAMessageIsOpen) {
  for (const bool end : {false, true}) {
    Program p;
    app::firststep& w = *p.window;
    std::string log;
    w.VIMA.Click = [&] { log += track::CarlsonRF(-1, 1, 1) == 0 ? "()" : "?"; };
    w.epitaxyno.Change = [&] { log += 's'; };
    w.Timer1.Tick = [&] { log += 't'; };
    w.Option1.Click = [&] { log += 'o'; };
    w.Timer1.Enabled = true;
    p.desktop.whileMessageIsOpen = [&] {
      w.epitaxyno.UserScroll(-3);
      if (!end) w.STAMATHMA.UserClick();
      for (int i = 0; i < 2; ++i) p.desktop.Tick();  // the second finds the first still waiting
      if (end) w.TERMATISMOS.UserClick();
      w.Option1.UserClick();
      EXPECT_TRUE(w.epitaxyno.Value == 20 && log.empty() && !p.desktop.ended);
    };
    w.VIMA.UserClick();
    w.events.Deliver(w.Timer1.Tick);
    EXPECT_EQ(log, end ? "()st" : "()sot");
    EXPECT_TRUE(p.desktop.ended == end && !w.Timer1.Enabled);
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

// Inside, through opposite sides, through corners, past one, beyond each side; from the farthest
// places there are, where an end near the box keeps its digits.
TEST(Clip, KeepsWhatIsInTheBox) {
  const double far = 1.7e308;
  const double segments[][4] = {{-1, 0, 500, 299.5}, {599, 90, -101, 20},   {30, 400, 10, -100},
                                {far, 7, -far, 7},   {0.25, 0.5, far, far}, {-far, far, 0.25, 0.5},
                                {-101, 50, 0, -51},  {-far, 9, -2, 9},      {501, 9, far, 9},
                                {9, 301, 9, far},    {9, -far, 9, -1}};
  std::ostringstream text;
  for (const auto& [x1, y1, x2, y2] : segments) {
    const auto kept = toolkit::Clip({{x1, y1}, {x2, y2}}, {-1, 0, 500, 300});
    if (kept) text << kept->from.x << ' ' << kept->from.y << ' ' << kept->to.x << ' ' << kept->to.y;
    text << '|';
  }
  EXPECT_EQ(text.str(),
            "-1 0 500 299.5|500 80.1 -1 30|26 300 14 0|500 7 -1 7|0.25 0.5 299.75 300|"
            "-1 1.75 0.25 0.5||||||");
}

// The ends of the arc lie on the disc's edge and all between them inside, at any radius.
TEST(Arc, IsThePartInTheDiscAtAnyRadius) {
  std::mt19937_64 random(4);
  const auto any = [&](double size) { return std::uniform_real_distribution(-size, size)(random); };
  for (int i = 0; i < 3000; ++i) {
    const double r = std::pow(10, 8.1 + any(9.1)), turn = any(4), off = i % 2 == 0 ? 600 : 30;
    const Point touch{any(off), any(off)}, n{std::cos(turn), std::sin(turn)};
    const auto arc = toolkit::ArcInDisc({touch, n, r}, {0, 0}, 400);
    for (int j = 0; arc.begin <= arc.end && j <= 8; ++j) {
      const Point at = toolkit::PointOfArc({touch, n, r}, std::lerp(arc.begin, arc.end, j / 8.0));
      const double x = at.x - touch.x, y = at.y - touch.y, out = std::hypot(at.x, at.y);
      const bool end = arc.end - arc.begin < 6.28 && j % 8 == 0;
      ASSERT_NEAR((x * x + y * y) / r, 2 * (x * n.x + y * n.y), 1e-6) << r;  // on the circle
      ASSERT_TRUE(out <= 400 + 1e-6 && (!end || out >= 400 - 1e-6)) << r << ": " << out;
    }
    const double middle = std::hypot(touch.x + r * n.x, touch.y + r * n.y);
    ASSERT_TRUE(arc.begin <= arc.end || r > 1e15 || std::abs(middle - r) > 399) << r;
  }
}

}  // namespace
