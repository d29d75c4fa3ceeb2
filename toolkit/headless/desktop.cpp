#include "toolkit/headless/desktop.h"

#include <cmath>

#include "toolkit/lengths.h"

namespace toolkit::headless {
namespace {

// Finds the window's picture box among its controls.
class PictureFinder : public ControlVisitor {
 public:
  PictureBox* found = nullptr;

  void Visit(Label&) override {}
  void Visit(ScrollBar&) override {}
  void Visit(CommandButton&) override {}
  void Visit(OptionButton&) override {}
  void Visit(TextBox&) override {}
  void Visit(PictureBox& box) override { found = &box; }
};

}  // namespace

// Keeps the painted picture as large as its control, as a screen of that ratio has it: the
// control's place is whole logical pixels, of `density` screen pixels each.
class HeadlessDesktop::PaintedMirror : public Mirror {
 public:
  PaintedMirror(PictureBox& box, raster::RasterCanvas& canvas, double density)
      : Mirror(box, [this] { Fit(); }), box_(box), canvas_(canvas), density_(density) {
    box_.AttachCanvas(&canvas_);
    Fit();
  }
  ~PaintedMirror() override { box_.AttachCanvas(nullptr); }

 private:
  void Fit() {
    const PixelBox place = TwipScale(1.0).CanvasOf(box_);
    const Extent pixels{static_cast<int>(std::lround(place.width * density_)),
                        static_cast<int>(std::lround(place.height * density_))};
    canvas_.SetFont(box_.FontName, box_.FontSize);
    if (canvas_.Resize(pixels, density_, !box_.CanRedraw())) box_.Redraw();
  }

  PictureBox& box_;
  raster::RasterCanvas& canvas_;
  double density_;
};

void HeadlessDesktop::Create(Window& window) {
  window_ = &window;
  PictureFinder finder;
  for (Control* control : window.controls) control->Accept(finder);
  box_ = finder.found;
  if (box_ == nullptr) return;
  recording_ = std::make_unique<RecordingCanvas>(*box_);
  box_->AttachCanvas(recording_.get());
}

raster::RasterCanvas& HeadlessDesktop::Paint(double density) {
  mirror_.reset();
  mirror_ = std::make_unique<PaintedMirror>(*box_, painting_, density);
  return painting_;
}

void HeadlessDesktop::Destroy(Window&) {
  mirror_.reset();
  if (box_ != nullptr) box_->AttachCanvas(nullptr);
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
