#include "toolkit/headless/desktop.h"

namespace toolkit::headless {

void HeadlessDesktop::Create(Window& window) {
  window_ = &window;
  for (Control* control : window.controls) {
    if (auto* box = dynamic_cast<PictureBox*>(control)) {
      pictures_.push_back(std::make_unique<RecordingCanvas>(*box));
      box->AttachCanvas(pictures_.back().get());
    }
  }
}

void HeadlessDesktop::Destroy(Window& window) {
  for (Control* control : window.controls) {
    if (auto* box = dynamic_cast<PictureBox*>(control)) box->AttachCanvas(nullptr);
  }
  pictures_.clear();
  window_ = nullptr;
}

void HeadlessDesktop::Tick() {
  if (window_ == nullptr) return;
  for (Timer* timer : window_->timers) timer->Due();
}

void HeadlessDesktop::ShowMessage(const std::string& text) {
  messages.push_back(text);
  if (whileMessageIsOpen) whileMessageIsOpen();
}

}  // namespace toolkit::headless
