#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "toolkit/canvas.h"
#include "toolkit/controls.h"
#include "toolkit/keys.h"
#include "toolkit/pointer_shape.h"

namespace toolkit {

// A mouse button pressed or released over a picture box, at a place in the pixels of its canvas.
struct MouseEvent {
  int button;
  int shift;
  Point place;
};

// The frame around the picture, on each side: the canvas is the control less this.
inline constexpr int kFramePixels = 1;

// What the mouse pointer looks like over a picture: it tells what a press will do.
enum class Cursor { Arrow, Cross, PointingHand, ClosedHand };

// A control that the program draws on. The backend gives it its canvas.
class PictureBox : public Control {
 public:
  PictureBox(ControlSite& site, const Design& design, Colour foreground)
      : Control(site, design), ForeColor(foreground), Description(*this, "") {}

  const Colour ForeColor;
  Property<std::string> Description;  // what the picture shows, for those who do not see it
  bool AutoRedraw = false;            // the canvas keeps its picture either way

  void UserMouseDown(const MouseEvent& event);
  void UserMouseUp(const MouseEvent& event);
  // The machine has taken the pointer away while a button was down: nothing is released.
  void UserMouseCancel();

  // A key pressed or let go while the box has the focus. False for a key that does nothing here.
  // A key that is held picks once; Pick, SHIFT let go and Cancel are told apart by `Key`. Of the
  // two SHIFT keys the last one counts.
  bool UserKeyDown(const KeyEvent& key);
  bool UserKeyUp(const KeyEvent& key);
  // The focus has gone elsewhere, and with it a SHIFT that is let go: whatever was begun is
  // cancelled.
  void UserFocusLost();
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
  // What a press at this place of the canvas will do.
  virtual Cursor CursorAt(Point place) const = 0;

  void AttachCanvas(Canvas* canvas) { canvas_ = canvas; }
  // Whether the box knows everything that its picture was drawn with.
  virtual bool CanRedraw() const = 0;
  // The canvas has another size or density and is blank: draws the picture again, if CanRedraw().
  virtual void Redraw() = 0;
  void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }

 protected:
  // Null until a backend has created the window.
  Canvas* canvas() const { return canvas_; }
  // Whether a mouse button is down that was pressed here.
  bool Pressed() const { return pressed_; }

  virtual void OnMouseDown(const MouseEvent& event) = 0;
  virtual void OnMouseUp(const MouseEvent& event) = 0;
  virtual void OnKey(Key key, int shift) = 0;

 private:
  Canvas* canvas_ = nullptr;
  bool pressed_ = false;
  int shiftKeys_ = 0;  // how many of the SHIFT keys have been pressed here and are held
  std::function<void(const std::string&)> announcer_;
};

}  // namespace toolkit
