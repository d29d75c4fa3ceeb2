#include <gtest/gtest.h>

#include "harness.h"
#include "toolkit/tick_grid.h"

namespace {

using namespace std::chrono_literals;

// Ticks of 20 ms, then of 100 ms. The clock begins anywhere.
TEST(TickGrid, DropsLateTicksAndKeepsToTheGrid) {
  Program p;
  toolkit::Timer& timer = p.window->Timer1;
  toolkit::TickGrid grid;
  const toolkit::Clock::time_point start(12345678ns);
  const auto due = [&] { return *grid.Due() - start; };

  timer.Interval = 20;
  grid.Follow(timer, start);
  EXPECT_FALSE(grid.Due() || grid.Take(start + 1h));  // idle: nobody has to wake

  timer.Enabled = true;
  grid.Follow(timer, start);
  EXPECT_EQ(due(), 20ms);
  const struct {
    toolkit::Clock::duration now;
    bool ticks;
    toolkit::Clock::duration next;
  } looks[] = {{19ms, false, 20ms}, {20ms, true, 40ms},   {21ms, false, 40ms},  {47ms, true, 60ms},
               {59ms, false, 60ms}, {140ms, true, 160ms}, {141ms, false, 160ms}};
  for (const auto& [now, ticks, next] : looks) {
    EXPECT_EQ(grid.Take(start + now), ticks);
    grid.Follow(timer, start + now);  // nothing has changed
    EXPECT_EQ(due(), next);
  }

  // Another pace, or a new start, begins a new grid.
  timer.Interval = 100;
  grid.Follow(timer, start + 150ms);
  EXPECT_EQ(due(), 250ms);
  for (const bool enabled : {false, true}) {
    timer.Enabled = enabled;
    grid.Follow(timer, start + 170ms);
    EXPECT_EQ(grid.Due().has_value(), enabled);
  }
  EXPECT_EQ(due(), 270ms);
  for (const int interval : {-5, 1, 16}) EXPECT_EQ(toolkit::TickPeriod(interval) / 1us, 16666);
  EXPECT_EQ(toolkit::TickPeriod(17), 17ms);
}

}  // namespace
