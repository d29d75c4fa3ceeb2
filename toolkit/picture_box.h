#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>

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

// The keys that a picture box tells apart. Pick is Enter or Space, Cancel is Escape.
enum class Key { Left, Right, Up, Down, Home, End, Pick, Cancel, ShiftReleased };

// Where the keyboard points on a picture, in the pixels of its canvas, and the tip of what it pulls
// from there. Shown over the picture while the box has the focus, never part of it.
struct KeyPointer {
  Point place;
  std::optional<Point> tip;
};

// A control that the program draws on. The backend gives it its canvas.
class PictureBox : public Control {
 public:
  PictureBox(ControlSite& site, const Design& design, Colour foreground)
      : Control(site, design), ForeColor(foreground), Description(*this, "") {}

  const Colour ForeColor;
  Property<std::string> Description;  // what the picture shows, for those who do not see it
  bool AutoRedraw = false;            // the canvas keeps its picture either way

  void UserMouseDown(const MouseEvent& event) {
    Events().Deliver([this, event] { OnMouseDown(event); });
  }
  void UserMouseUp(const MouseEvent& event) {
    Events().Deliver([this, event] { OnMouseUp(event); });
  }

  void UserKey(Key key, int shift) {
    Events().Deliver([this, key, shift] { OnKey(key, shift); });
  }

  // Tells those who do not see the picture what has just appeared on it.
  void Announce(const std::string& text) {
    if (announcer_) announcer_(text);
  }
  void AttachAnnouncer(std::function<void(const std::string&)> announcer) {
    announcer_ = std::move(announcer);
  }

  virtual std::optional<KeyPointer> PointerOnCanvas() const = 0;

  void AttachCanvas(Canvas* canvas) { canvas_ = canvas; }
  void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }

 protected:
  // Null until a backend has created the window.
  Canvas* canvas() const { return canvas_; }

  virtual void OnMouseDown(const MouseEvent& event) = 0;
  virtual void OnMouseUp(const MouseEvent& event) = 0;
  virtual void OnKey(Key key, int shift) = 0;

 private:
  Canvas* canvas_ = nullptr;
  std::function<void(const std::string&)> announcer_;
};

}  // namespace toolkit
