#pragma once

#include "toolkit/canvas.h"
#include "toolkit/controls.h"

namespace toolkit {

// The bits of the shift state that comes with a press or release of a mouse button.
inline constexpr int kShiftMask = 1;
inline constexpr int kCtrlMask = 2;
inline constexpr int kAltMask = 4;

// A mouse button pressed or released over a picture box, at a place in the pixels of its canvas.
struct MouseEvent {
  int button;
  int shift;
  Point place;
};

// The frame around the picture, on each side: the canvas is the control less this.
inline constexpr int kFramePixels = 1;

// A control that the program draws on. The backend gives it its canvas.
class PictureBox : public Control {
 public:
  PictureBox(ControlSite& site, const Design& design, Colour foreground)
      : Control(site, design), ForeColor(foreground) {}

  const Colour ForeColor;
  bool AutoRedraw = false;  // the canvas keeps its picture either way

  void UserMouseDown(const MouseEvent& event) {
    Events().Deliver([this, event] { OnMouseDown(event); });
  }
  void UserMouseUp(const MouseEvent& event) {
    Events().Deliver([this, event] { OnMouseUp(event); });
  }

  void AttachCanvas(Canvas* canvas) { canvas_ = canvas; }
  void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }

 protected:
  // Null until a backend has created the window.
  Canvas* canvas() const { return canvas_; }

  virtual void OnMouseDown(const MouseEvent& event) = 0;
  virtual void OnMouseUp(const MouseEvent& event) = 0;

 private:
  Canvas* canvas_ = nullptr;
};

}  // namespace toolkit
