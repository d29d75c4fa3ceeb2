#include "toolkit/tick_grid.h"

namespace toolkit {

void TickGrid::Follow(const Timer& timer, Clock::time_point now) {
  const Clock::duration period = TickPeriod(timer.Interval);
  if (timer.Enabled == due_.has_value() && period == period_) return;
  period_ = period;
  start_ = now;
  due_ = std::nullopt;
  if (timer.Enabled) due_ = start_ + period_;
}

bool TickGrid::Take(Clock::time_point now) {
  if (!due_ || now < *due_) return false;
  due_ = start_ + ((now - start_) / period_ + 1) * period_;
  return true;
}

}  // namespace toolkit
