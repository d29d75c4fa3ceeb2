#pragma once

#include <QTimer>

#include "toolkit/tick_grid.h"

namespace toolkit::qt {

// Wakes a timer of the program by single shots of one of Qt's, each set for the next tick.
class TimerMirror : public Mirror {
 public:
  explicit TimerMirror(Timer& timer);

 private:
  void Follow();
  void Wake();
  void Aim();

  Timer& timer_;
  TickGrid grid_;
  QTimer shot_;
};

}  // namespace toolkit::qt
