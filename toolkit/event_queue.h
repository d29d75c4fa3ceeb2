#pragma once

#include <deque>
#include <functional>
#include <utility>

namespace toolkit {

// Delivers events so that each handler runs to its end before the next one starts.
//
// A modal message box keeps its own event loop running inside the handler that opened it. What
// arrives meanwhile (a tick, a key, a click) waits here until that handler has ended.
class EventQueue {
 public:
  // `settled` is called after each handler, before the next one starts.
  explicit EventQueue(std::function<void()> settled = nullptr) : settled_(std::move(settled)) {}

  // Runs `handler` now, or in its turn when a handler is running. After End() it does nothing.
  void Deliver(std::function<void()> handler);

  // Ends the program's part in the event loop: what waits is dropped, nothing is delivered any
  // more.
  void End();

  bool Running() const { return running_; }

 private:
  std::function<void()> settled_;
  std::deque<std::function<void()>> waiting_;
  bool running_ = false;
  bool ended_ = false;
};

}  // namespace toolkit
