#pragma once

#include <string>
#include <vector>

#include "toolkit/picture_box.h"

namespace toolkit::headless {

// One drawing operation as it reached the canvas, in its pixels.
struct Operation {
  enum class Kind { Clear, Line, Circle, Dot, Text };

  Kind kind;
  Pen pen{};          // the colour alone for Clear and Text
  Point from{};       // the line's start, the circle's touch point, the dot, the text's corner
  Point to{};         // the line's end, the circle's direction to its centre
  double radius = 0;  // the circle's
  std::string text{};
};

// A canvas that keeps what is drawn as a list instead of a picture.
class RecordingCanvas : public Canvas {
 public:
  explicit RecordingCanvas(const PictureBox& box) : box_(box) {}

  std::vector<Operation> operations;

  Extent Size() const override;
  int DotSide(int penWidth) const override { return penWidth; }
  void Clear(Colour background) override;
  void Line(Point from, Point to, const Pen& pen) override;
  void Circle(const CircleShape& circle, const Pen& pen) override;
  void Dots(std::span<const Point> places, const Pen& pen) override;
  void Text(Point topLeft, const std::string& text, Colour colour) override;

 private:
  const PictureBox& box_;
};

}  // namespace toolkit::headless
