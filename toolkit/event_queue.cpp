#include "toolkit/event_queue.h"

#include <utility>

namespace toolkit {

void EventQueue::Deliver(std::function<void()> handler) {
  if (ended_) return;
  waiting_.push_back(std::move(handler));
  if (running_) return;
  running_ = true;
  while (!waiting_.empty()) {
    const std::function<void()> next = std::move(waiting_.front());
    waiting_.pop_front();
    next();
    if (settled_) settled_();
  }
  running_ = false;
}

void EventQueue::End() {
  ended_ = true;
  waiting_.clear();
}

}  // namespace toolkit
