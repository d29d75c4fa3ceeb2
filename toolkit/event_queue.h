#pragma once

#include <deque>
#include <functional>

namespace toolkit {

// Delivers events so that each handler runs to its end before the next one starts.
//
// A modal message box keeps its own event loop running inside the handler that opened it. What
// arrives meanwhile (a tick, a key, a click) waits here until that handler has ended.
class EventQueue {
 public:
  // Runs `handler` now, or in its turn when a handler is running. After End() it does nothing.
  void Deliver(std::function<void()> handler);

  // Ends the program's part in the event loop: what waits is dropped, nothing is delivered any
  // more.
  void End();

 private:
  std::deque<std::function<void()>> waiting_;
  bool running_ = false;
  bool ended_ = false;
};

}  // namespace toolkit
