#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "toolkit/headless/recording_canvas.h"
#include "toolkit/headless/stand_in_letters.h"
#include "toolkit/raster/canvas.h"
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

  // The record of what is drawn on the window's sketch.
  RecordingCanvas& Picture() { return *recording_; }
  // Lets the sketch be drawn in pixels from now on instead, `density` of them to one at 96 dots per
  // inch, with stand-in letters. Called again, it changes the density.
  raster::RasterCanvas& Paint(double density);
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
  class PaintedMirror;

  static constexpr raster::Packing kPacking{16, 8, 0};

  Extent screen_;
  Window* window_ = nullptr;
  PictureBox* box_ = nullptr;
  std::unique_ptr<RecordingCanvas> recording_;
  StandInLetters letters_{kPacking};
  raster::RasterCanvas painting_{kPacking, letters_};
  std::unique_ptr<Mirror> mirror_;
};

}  // namespace toolkit::headless
