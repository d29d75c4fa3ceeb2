#include "toolkit/timer.h"

#include <algorithm>

namespace toolkit {

Clock::duration TickPeriod(int intervalMilliseconds) {
  const Clock::duration asked = std::chrono::milliseconds(std::max(intervalMilliseconds, 0));
  const Clock::duration frame = Clock::duration(std::chrono::seconds(1)) / kMaxTicksPerSecond;
  return std::max(asked, frame);
}

Clock::time_point NextTick(Clock::time_point start, Clock::time_point now, Clock::duration period) {
  if (now < start) return start;
  return start + ((now - start) / period + 1) * period;
}

void Timer::Due() {
  if (pending_ || !Enabled) return;
  pending_ = true;
  Events().Deliver([this] {
    pending_ = false;
    if (Enabled && Tick) Tick();
  });
}

}  // namespace toolkit
