#pragma once

#include <QTimer>

#include "toolkit/timer.h"

namespace toolkit::qt {

// Runs a timer of the program by single shots of one of Qt's, each set for the next place of the
// even grid that begins when the timer is enabled. A repeating one would make up for ticks that
// were late by bunching them.
class TimerMirror : public Mirror {
 public:
  explicit TimerMirror(Timer& timer);
  ~TimerMirror() override;
  TimerMirror(const TimerMirror&) = delete;
  TimerMirror& operator=(const TimerMirror&) = delete;

  void Refresh() final;

 private:
  void Fire();
  // Sets the shot for the first place of the grid after `time`.
  void AimAfter(Clock::time_point time);

  Timer& timer_;
  QTimer shot_;
  bool running_ = false;
  Clock::duration period_{};
  Clock::time_point start_, due_;
};

}  // namespace toolkit::qt
