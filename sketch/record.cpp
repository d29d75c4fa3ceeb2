#include "sketch/record.h"

#include <utility>

namespace sketch {

void Record::Clear() {
  drawings_.clear();
  texts_.clear();
  kept_.clear();
  complete_ = true;
}

void Record::Add(const Drawing& drawing) {
  if (complete_ && drawings_.size() >= kMost) {
    Clear();
    complete_ = false;
  }
  if (complete_) drawings_.push_back(drawing);
}

void Record::AddText(Drawing drawing, const std::string& text) {
  drawing.text = static_cast<std::uint32_t>(texts_.size());
  if (complete_) texts_.push_back(text);
  Add(drawing);
}

// The step before the last still matters: the last one's arrow is drawn over its labels and then
// under its own.
void Record::Repeat(Repetition draw) {
  if (!complete_) return;
  if (kept_.size() == 2) {
    const Kept gone = std::exchange(kept_[0], std::move(kept_[1]));
    kept_.pop_back();
    // On an empty sketch there is nothing to erase.
    if (!drawings_.empty()) {
      for (const Drawing& eraser : gone.erasers) Add(eraser);
    }
  }
  kept_.push_back({std::move(draw), {}});
}

void Record::AddEraser(const Drawing& line) {
  if (!kept_.empty()) kept_.back().erasers.push_back(line);
}

std::vector<Record::Repetition> Record::TakeRepetitions() {
  std::vector<Repetition> taken;
  for (Kept& kept : std::exchange(kept_, {})) taken.push_back(std::move(kept.draw));
  return taken;
}

void Record::Replay(const std::function<void(const Drawing&)>& show) const {
  for (const Drawing& drawing : drawings_) show(drawing);
  for (const Kept& kept : kept_) kept.draw();
}

}  // namespace sketch
