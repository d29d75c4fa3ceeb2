#include "toolkit/qt/timer_mirror.h"

#include <algorithm>

namespace toolkit::qt {

TimerMirror::TimerMirror(Timer& timer) : Mirror(timer, [this] { Follow(); }), timer_(timer) {
  shot_.setSingleShot(true);
  shot_.setTimerType(Qt::PreciseTimer);
  QObject::connect(&shot_, &QTimer::timeout, &shot_, [this] { Wake(); });
  Follow();
}

void TimerMirror::Follow() {
  grid_.Follow(timer_, Clock::now());
  Aim();
}

// The next shot is set after the handler, which may have taken the time of several ticks.
void TimerMirror::Wake() {
  const Clock::time_point now = Clock::now();
  if (grid_.Due() && now >= *grid_.Due()) timer_.Due();
  grid_.Take(Clock::now());
  Aim();
}

void TimerMirror::Aim() {
  if (!grid_.Due()) {
    shot_.stop();
    return;
  }
  const auto wait = std::chrono::ceil<std::chrono::milliseconds>(*grid_.Due() - Clock::now());
  shot_.start(std::max(wait, std::chrono::milliseconds(0)));
}

}  // namespace toolkit::qt
