#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>

#include "sketch/record.h"
#include "toolkit/picture_box.h"

namespace sketch {

// Line styles.
inline constexpr int kSolid = 0;
inline constexpr int kDotted = 2;

// From user units to the pixels of a canvas of this size: pixels = origin + user * factor.
struct Mapping {
  toolkit::Extent size{};
  double originX = 0.0, factorX = 0.0, originY = 0.0, factorY = 0.0;

  toolkit::Point operator()(double x, double y) const {
    return {originX + x * factorX, originY + y * factorY};
  }
  bool operator==(const Mapping&) const = default;
};

// Where the keyboard points, and the tip of what it pulls, in user units.
struct Pointer {
  double x, y;
  double tipX, tipY;
  bool operator==(const Pointer&) const = default;
};

// The picture box that every picture is drawn on, in user coordinates: a corner-to-corner scale
// laid over the canvas so that the centre of the top-left pixel is (x1, y1) and that of the
// bottom-right one (x2, y2). Drawing state persists until it is changed. Numbers may be anything:
// what is huge is drawn as far as it shows, what is infinite or no number is not drawn.
class Sketch : public toolkit::PictureBox {
 public:
  Sketch(toolkit::ControlSite& site, const toolkit::Design& design, Colour foreground)
      : PictureBox(site, design, foreground), KeyPointer(*this, std::nullopt) {}

  double CurrentX = 0.0;  // user units: the top-left corner of the next text
  double CurrentY = 0.0;
  int DrawWidth = 1;  // pixels at 96 dots per inch
  int DrawStyle = kSolid;

  // A button pressed or released: button 1 left, 2 right, 4 middle; the shift state's bits; the
  // place in user coordinates, also outside the sketch.
  std::function<void(short button, short shift, float x, float y)> MouseDown, MouseUp;

  // A key pressed while the sketch has the focus, with the shift state's bits.
  std::function<void(toolkit::Key key, short shift)> KeyDown;
  toolkit::Property<std::optional<Pointer>> KeyPointer;

  // What a press at (x, y) will do; `pressed` while a button is held that was pressed here.
  std::function<toolkit::Cursor(float x, float y, bool pressed)> CursorOver;

  void Scale(double x1, double y1, double x2, double y2);
  double ScaleWidth() const { return x2_ - x1_; }
  double ScaleHeight() const { return y2_ - y1_; }

  std::optional<toolkit::KeyPointer> PointerOnCanvas() const override;
  toolkit::Cursor CursorAt(toolkit::Point place) const override;

  // Erases the whole drawing.
  void Cls();
  void Line(double x1, double y1, double x2, double y2, Colour colour);
  // The full circle through (x, y) whose centre lies `radius` times the unit vector (nx, ny) from
  // there; a signed radius of curvature along the normal says on which side. It passes through the
  // point at any radius, where the centre alone would round it away.
  void Circle(double x, double y, double nx, double ny, double radius, Colour colour);
  // One dot of the current width, in the foreground colour unless another is given.
  void PSet(double x, double y) { PSet(x, y, ForeColor); }
  void PSet(double x, double y, Colour colour);
  // The side of such a dot, in the canvas's pixels.
  int DotSide() const { return canvas() != nullptr ? canvas()->DotSide(DrawWidth) : DrawWidth; }
  // Dots in the foreground colour at places that ToPixels has given.
  void PSetPixels(std::span<const toolkit::Point> places);
  // Where user coordinates are on the canvas as it is now.
  const Mapping& ToPixels() const;
  // The text with its top-left corner at (CurrentX, CurrentY), in the foreground colour.
  void Print(const std::string& text);

  // Draws by `draw`, now and whenever the picture is drawn again: for a picture that is repeated
  // and grows, each repetition covering the last. What it draws from must not change before
  // Settle().
  void Repeat(const Record::Repetition& draw);
  // Makes what was repeated an ordinary part of the picture.
  void Settle();
  // While Settle() runs: every place of a row of dots counts, also those that share a pixel.
  bool Settling() const { return mode_ == Mode::Settling; }

  bool CanRedraw() const override { return record_.Complete(); }
  void Redraw() override;
  const Record& Drawn() const { return record_; }

 protected:
  void OnMouseDown(const toolkit::MouseEvent& event) override { Raise(MouseDown, event); }
  void OnMouseUp(const toolkit::MouseEvent& event) override { Raise(MouseUp, event); }
  void OnKey(toolkit::Key key, int shift) override {
    if (KeyDown) KeyDown(key, static_cast<short>(shift));
  }

 private:
  using MouseHandler = std::function<void(short, short, float, float)>;
  // What becomes of a drawing: it is shown and kept; shown, as a repetition's part; shown again;
  // kept alone.
  enum class Mode { Drawing, Repeating, Redrawing, Settling };
  struct Place {
    float x, y;
  };

  std::optional<Place> PlaceOf(toolkit::Point place) const;
  void Raise(const MouseHandler& handler, const toolkit::MouseEvent& event);
  void Run(Mode mode, const std::function<void()>& draw);
  void Draw(const Drawing& drawing);
  void Show(const Drawing& drawing);
  void ShowLine(const Drawing& line);
  void ShowCircle(const Drawing& circle);
  void ShowText(double x, double y, const std::string& text);

  double x1_ = 0.0, y1_ = 10.0, x2_ = 20.0, y2_ = -10.0;
  mutable Mapping mapping_;
  Drawing scaleAtStart_ = {.kind = Drawing::Kind::Scale};  // of the record
  Record record_;
  Mode mode_ = Mode::Drawing;
};

}  // namespace sketch
