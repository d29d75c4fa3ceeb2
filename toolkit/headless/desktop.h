#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "toolkit/headless/recording_canvas.h"
#include "toolkit/window.h"

namespace toolkit::headless {

// A desktop without a display: a screen of any size, canvases that record, timers that tick when
// they are told to, message boxes that are answered at once.
class HeadlessDesktop : public Desktop {
 public:
  // The screen's size in pixels at 96 dots per inch.
  HeadlessDesktop(int screenWidth, int screenHeight) : screen_{screenWidth, screenHeight} {}

  std::vector<std::string> messages;         // the texts of the message boxes so far
  std::function<void()> whileMessageIsOpen;  // what happens before the user presses OK
  bool ended = false;

  // The picture of the window's sketch.
  RecordingCanvas& Picture() { return *pictures_.front(); }
  // Lets every timer of the window tick once, if it is enabled.
  void Tick();

  float ScreenWidth() const override { return kTwipsPerPixel * static_cast<float>(screen_.width); }
  float ScreenHeight() const override {
    return kTwipsPerPixel * static_cast<float>(screen_.height);
  }
  void Create(Window& window) override;
  void Destroy(Window& window) override;
  void ShowMessage(const std::string& text) override;
  void End() override { ended = true; }

 private:
  Extent screen_;
  Window* window_ = nullptr;
  std::vector<std::unique_ptr<RecordingCanvas>> pictures_;
};

}  // namespace toolkit::headless
