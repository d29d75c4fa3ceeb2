#include "toolkit/qt/timer_mirror.h"

#include <algorithm>

namespace toolkit::qt {

TimerMirror::TimerMirror(Timer& timer) : timer_(timer) {
  shot_.setSingleShot(true);
  shot_.setTimerType(Qt::PreciseTimer);
  QObject::connect(&shot_, &QTimer::timeout, &shot_, [this] { Fire(); });
  Refresh();
  timer_.Attach(this);
}

TimerMirror::~TimerMirror() {
  timer_.Attach(nullptr);
}

void TimerMirror::Refresh() {
  const Clock::duration period = TickPeriod(timer_.Interval);
  if (timer_.Enabled == running_ && period == period_) return;
  running_ = timer_.Enabled;
  period_ = period;
  shot_.stop();
  if (!running_) return;
  start_ = Clock::now();
  AimAfter(start_);
}

void TimerMirror::Fire() {
  // The tick has come even if Qt, which counts in milliseconds, is a little early.
  const Clock::time_point due = due_;
  timer_.Due();
  // The handler may have aimed the timer anew, stopped it, or spent several ticks' time.
  if (running_ && due == due_) AimAfter(std::max(Clock::now(), due));
}

void TimerMirror::AimAfter(Clock::time_point time) {
  due_ = NextTick(start_, time, period_);
  const auto wait = std::chrono::ceil<std::chrono::milliseconds>(due_ - Clock::now());
  shot_.start(std::max(wait, std::chrono::milliseconds(0)));
}

}  // namespace toolkit::qt
