#pragma once

#include <optional>

#include "toolkit/timer.h"

namespace toolkit {

// When a timer's ticks are due: on the even grid that begins when the timer is enabled. Places of
// the grid that have gone by are dropped, so a late program never sees its ticks in a bunch. It
// reads no clock: a backend hands the time in, and wakes when it is told to.
class TickGrid {
 public:
  // Takes over what the timer says. Enabling it or giving it another pace begins a new grid.
  void Follow(const Timer& timer, Clock::time_point now);

  // When the next tick is due; nothing while the timer is disabled, and then nobody has to wake.
  std::optional<Clock::time_point> Due() const { return due_; }

  // Whether a tick is due by now; the next one then is due on the grid's next place after now.
  bool Take(Clock::time_point now);

 private:
  Clock::time_point start_;
  Clock::duration period_{};
  std::optional<Clock::time_point> due_;
};

}  // namespace toolkit
