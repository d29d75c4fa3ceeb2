#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <utility>

#include "toolkit/control.h"

namespace toolkit {

// How often a timer ticks at most. A screen shows no more than 60 pictures a second, so a timer of
// 1 ms that ticked 1000 times would spend a run of some hundred steps before anybody saw it.
inline constexpr int kMaxTicksPerSecond = 60;

using Clock = std::chrono::steady_clock;

// The time between two ticks of a timer with this interval.
Clock::duration TickPeriod(int intervalMilliseconds);

class Timer : public Component {
 public:
  Timer(ControlSite& site, std::string name, int interval, bool enabled)
      : Component(site, std::move(name)), Interval(*this, interval), Enabled(*this, enabled) {}

  Property<int> Interval;  // milliseconds; the pace of the ticks is TickPeriod of it
  Property<bool> Enabled;
  std::function<void()> Tick;

  // A tick is due. One that finds the last one still waiting, or the timer disabled, is dropped.
  void Due();

 private:
  bool pending_ = false;
};

}  // namespace toolkit
