#include "toolkit/timer.h"

#include <algorithm>

namespace toolkit {

Clock::duration TickPeriod(int intervalMilliseconds) {
  const Clock::duration asked = std::chrono::milliseconds(std::max(intervalMilliseconds, 0));
  const Clock::duration frame = Clock::duration(std::chrono::seconds(1)) / kMaxTicksPerSecond;
  return std::max(asked, frame);
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
